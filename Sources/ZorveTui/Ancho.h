#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zorve::tui {

/// How many columns a terminal gives one user-perceived character: two for wide ones, emoji sequences and
/// flags, none for a mark that stands alone. It holds valid UTF-8 without controls.
[[nodiscard]] std::size_t anchoDeCaracter(std::string_view caracter);

/// The columns of `texto`, character by character.
[[nodiscard]] std::size_t anchoDe(std::string_view texto);

/// Whether terminals disagree about how far the character moves the cursor.
[[nodiscard]] bool anchoDudoso(std::string_view caracter);

/// `texto` in at most `columnas`: its start, and "…" in the last column, when it is longer.
[[nodiscard]] std::string hastaDonde(std::string_view texto, std::size_t columnas);

/// The same, keeping the end behind a first "…".
[[nodiscard]] std::string desdeDonde(std::string_view texto, std::size_t columnas);

/// Takes the first user-perceived character away from `resto`, which is not empty.
[[nodiscard]] std::string_view sacarCaracter(std::string_view& resto);

}  // namespace zorve::tui
