#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ZorveCore/Modelo.h"
#include "ZorveCore/Texto/TextoPlegado.h"

namespace zorve {

/// The search text cut at white space and folded; empty words dropped.
[[nodiscard]] std::vector<std::string> fichasDe(std::string_view consulta, ReglaDePlegado regla);

/// What a session is searched in: title, directory and last prompt with one space between, folded.
[[nodiscard]] std::string textoDeBusqueda(Session const& sesion, ReglaDePlegado regla);

/// Whether every word occurs in the folded text.
[[nodiscard]] bool coincide(std::string_view textoPlegado, std::span<std::string const> fichas);

/// Where the word begins in the folded text, at or after `desde`; `npos` when it does not occur there. A word
/// that is no UTF-8 occurs at whole characters alone.
[[nodiscard]] std::size_t dondeEsta(std::string_view textoPlegado, std::string_view ficha, std::size_t desde);

/// The positions, in order, of the sessions in which every word of `consulta` occurs (title, directory or
/// last prompt; case and accents ignored). With no word: all of them. Any thread.
[[nodiscard]] std::vector<std::size_t> filtrar(std::span<Session const> sesiones, std::string_view consulta,
                                               ReglaDePlegado regla);

}  // namespace zorve
