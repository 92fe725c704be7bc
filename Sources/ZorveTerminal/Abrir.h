#pragma once

#include <expected>
#include <span>
#include <string>

#include "ZorveCore/Terminales/FichaDeTerminal.h"
#include "ZorveTerminal/Lanzamiento.h"

namespace zorve::ayudante {

/// Opens a window of the terminal in `directorio` that runs the shell command line `comando` in the
/// person's shell, which stays afterwards. Returns when the shell has started, at the latest after 2.5 s.
/// Fails when the terminal is not there or ends before with a failure.
[[nodiscard]] std::expected<void, FinTemprano> abrir(FichaDeTerminal const& ficha,
                                                     std::string const& directorio,
                                                     std::string const& comando,
                                                     std::span<std::string const> entorno);

/// The arguments that the terminal is started with.
[[nodiscard]] std::vector<std::string> argumentosDe(FichaDeTerminal const& ficha,
                                                    std::vector<std::string> const& palabras);

}  // namespace zorve::ayudante
