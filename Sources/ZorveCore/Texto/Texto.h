#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zorve {

/// Texts are UTF-8. Bytes that are no UTF-8 stand for themselves: they are no white space, each is one
/// character, and they equal only themselves.

/// `texto` without Unicode white space and line breaks at both ends.
[[nodiscard]] std::string_view recortar(std::string_view texto);

/// The first piece that is no Unicode white space, empty when there is none; `resto` keeps what follows it.
[[nodiscard]] std::string_view sacarPalabra(std::string_view& resto);

/// The pieces between runs of Unicode white space; empty pieces dropped.
[[nodiscard]] std::vector<std::string_view> palabras(std::string_view texto);

/// `texto` without blanks, tabs and line breaks at both ends, those of ASCII alone: as programs and settings
/// files mean them.
[[nodiscard]] std::string_view recortarAscii(std::string_view texto);

/// The first line without its line feed; `resto` keeps what follows it.
[[nodiscard]] std::string_view sacarLinea(std::string_view& resto);

/// The first `cuantos` user-perceived characters (extended grapheme clusters, UAX #29). Whole if there are
/// fewer.
[[nodiscard]] std::string_view primerosCaracteres(std::string_view texto, std::size_t cuantos);

/// Whether every byte is below 0x80.
[[nodiscard]] bool esAscii(std::string_view texto);

/// One character at the start of `texto` (which is not empty): its code point, or -1 for a byte that is no
/// UTF-8, and how many bytes it takes.
struct PuntoDeCodigo {
  std::int32_t valor = -1;
  std::size_t bytes = 1;
};
[[nodiscard]] PuntoDeCodigo puntoAlInicio(std::string_view texto);

/// `texto` with U+FFFD for each maximal subpart of what is no valid UTF-8: for as many bytes as could begin a
/// character and do not go on as one, else for one byte (the practice that Unicode recommends).
[[nodiscard]] std::string conUtf8Valido(std::string_view texto);

}  // namespace zorve
