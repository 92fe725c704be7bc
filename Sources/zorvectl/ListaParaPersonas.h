#pragma once

#include <span>
#include <string>

#include "ZorveCore/Modelo.h"
#include "zorvectl/Salida.h"

namespace zorve::ctl {

/// The shortest length, at least 4, at which the starts of all identifiers differ.
[[nodiscard]] std::size_t largoDeClave(std::span<Session const> todas);

/// A line a session: the start of its identifier (`largoDeClave` bytes), title, directory with "~" for
/// `home`, state when it is running, age, prompt count.
[[nodiscard]] std::string listaParaPersonas(std::span<Session const* const> sesiones,
                                            std::size_t largoDeClave, std::string const& home, Fecha ahora,
                                            Pantalla const& pantalla);

}  // namespace zorve::ctl
