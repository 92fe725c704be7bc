#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zorve {

/// `texto` on one line, as it may safely be printed: C0 controls as their pictures ("␛"), C1 controls, line
/// and paragraph separators, byte order marks and bidirectional controls as "<U+202E>", bytes that are no
/// UTF-8 as U+FFFD. Any thread.
[[nodiscard]] std::string textoVisible(std::string_view texto);

/// How many columns of a terminal `texto` takes. It holds valid UTF-8 without controls.
[[nodiscard]] std::size_t columnasDe(std::string_view texto);

/// `texto` in at most `columnas`: its start, and "…" in the last column, when it is longer. Characters as
/// people see them stay whole.
[[nodiscard]] std::string cortadoAlFinal(std::string_view texto, std::size_t columnas);

/// The same, keeping the end behind a first "…".
[[nodiscard]] std::string cortadoAlPrincipio(std::string_view texto, std::size_t columnas);

}  // namespace zorve
