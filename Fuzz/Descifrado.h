#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace zorve::fuzz {

/// Bytes decoded one after the other, as the web's standard for encodings does it (WHATWG, "Encoding", UTF-8
/// decoder).
inline std::string descifradoByteAByte(std::string_view bytes) {
  std::string texto;
  std::string pendiente;
  int faltan = 0;
  unsigned menor = 0x80;
  unsigned mayor = 0xBF;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    unsigned const byte = static_cast<unsigned char>(bytes[i]);
    if (faltan == 0) {
      faltan = byte < 0x80 ? 0 : byte < 0xC2 ? -1 : byte < 0xE0 ? 1 : byte < 0xF0 ? 2 : byte < 0xF5 ? 3 : -1;
      if (byte == 0xE0) menor = 0xA0;
      if (byte == 0xED) mayor = 0x9F;
      if (byte == 0xF0) menor = 0x90;
      if (byte == 0xF4) mayor = 0x8F;
      if (faltan == 0) texto += bytes[i];
      if (faltan < 0) texto += "\xEF\xBF\xBD";
      pendiente = faltan > 0 ? std::string{bytes[i]} : "";
      if (faltan < 0) faltan = 0;
      continue;
    }
    bool const sigue = byte >= menor && byte <= mayor;
    menor = 0x80;
    mayor = 0xBF;
    if (sigue) {
      pendiente += bytes[i];
      if (--faltan == 0) texto += std::exchange(pendiente, {});
      continue;
    }
    texto += "\xEF\xBF\xBD";
    pendiente.clear();
    faltan = 0;
    --i;
  }
  return faltan > 0 ? texto + "\xEF\xBF\xBD" : texto;
}

}  // namespace zorve::fuzz
