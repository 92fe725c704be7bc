#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zorve {

/// Where programs and desktop entries are looked for, absolute paths, the first one first.
struct LugaresDeProgramas {
  std::vector<std::string> carpetas;
  std::vector<std::string> entradas;
};

/// The places of a person whose variables `variable` gives (the empty text for an absent one): $PATH and
/// then the folders that a process started by a desktop often misses; desktop entries under $XDG_DATA_HOME
/// and $XDG_DATA_DIRS.
[[nodiscard]] LugaresDeProgramas lugaresDeProgramas(
    std::function<std::string(std::string const&)> const& variable);

/// The absolute path of the executable `nombre`, or nothing. A name with a slash is no name. Any thread.
[[nodiscard]] std::optional<std::string> buscarPrograma(std::string_view nombre,
                                                        LugaresDeProgramas const& lugares);

/// The absolute path that the desktop entry with this file name runs (its TryExec, else its Exec), if that
/// can be run and its base name is one of `nombres`. Any thread.
[[nodiscard]] std::optional<std::string> programaDeLaEntrada(std::string_view entrada,
                                                             std::span<std::string const> nombres,
                                                             LugaresDeProgramas const& lugares);

}  // namespace zorve
