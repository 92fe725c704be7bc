#pragma once

#include <CLI/CLI.hpp>

#include <optional>
#include <string>

namespace zorve::ctl {

/// Adds an option or an argument that leaves what was said, the empty text too, in `destino`. (Bound to an
/// optional text directly, newer parsers take the empty text for none.) `destino` outlives the parsing.
CLI::Option* agregarTexto(CLI::App& orden, std::string const& nombre, std::optional<std::string>& destino,
                          std::string const& ayuda);

/// Adds `--home DIR`, which leaves the directory in `home`.
void agregarOpcionHome(CLI::App& orden, std::string& home);

}  // namespace zorve::ctl
