#pragma once

#include <string>

namespace zorve {

/// The absolute path of the helper zorve-terminal for a program that lies in `carpeta`: beside it, else under
/// ../libexec/zorve, if it can be run there and nobody else could put another in its place; else the system's
/// own place, so that starting it says what is missing.
[[nodiscard]] std::string rutaDelAyudanteDesde(std::string const& carpeta);

/// The same for the running program, wherever its own file lies.
[[nodiscard]] std::string rutaDelAyudante();

}  // namespace zorve
