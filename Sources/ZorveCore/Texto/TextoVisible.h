#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace zorve {

/// Whether the character at this code point gives text a direction of its own and is seen by nobody.
[[nodiscard]] constexpr bool gobiernaLaDireccion(std::int32_t punto) {
  return punto == 0x61C || punto == 0x200E || punto == 0x200F || (punto >= 0x202A && punto <= 0x202E) ||
         (punto >= 0x2066 && punto <= 0x2069);
}

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
