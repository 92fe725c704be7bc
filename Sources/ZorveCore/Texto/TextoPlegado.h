#pragma once

#include <string>
#include <string_view>

namespace zorve {

/// How "I" and "İ" fold: Turkish and Azeri have rules of their own.
enum class ReglaDePlegado : unsigned char { general, turca };

/// The rule for a POSIX locale name ("tr_TR.UTF-8", "az", …).
[[nodiscard]] ReglaDePlegado reglaDe(std::string_view local);

/// Folds case and accents for searching: canonical decomposition, full case folding, non-spacing marks
/// dropped after bases below U+0510 (Latin, Greek, Cyrillic), recomposed. So "É" is "e", "Ñ" is "n", "ß" is
/// "ss".
[[nodiscard]] std::string plegar(std::string_view texto, ReglaDePlegado regla);

/// The same, appended to `destino`, whose memory can be used again and again.
void agregarPlegado(std::string& destino, std::string_view texto, ReglaDePlegado regla);

/// Whether `texto` begins with a non-spacing mark, which folds by what stands before it.
[[nodiscard]] bool esMarcaSuelta(std::string_view texto);

/// Whether both are the same text but for case, by Unicode's full case folding; bytes that are no UTF-8 make
/// a text equal to itself only.
[[nodiscard]] bool igualesSinMayusculas(std::string_view uno, std::string_view otro);

}  // namespace zorve
