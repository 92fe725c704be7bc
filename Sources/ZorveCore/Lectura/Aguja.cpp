#include "ZorveCore/Lectura/Aguja.h"

#include <cstdint>
#include <cstring>

namespace zorve {

namespace {

using Bytes = std::uint8_t __attribute__((vector_size(16)));
using Mitades = std::uint64_t __attribute__((vector_size(16)));

/// So many places are tested together.
constexpr std::size_t tramo = 4 * sizeof(Bytes);

Bytes tomar(char const* desde) {
  Bytes bytes;
  std::memcpy(&bytes, desde, sizeof bytes);
  return bytes;
}

Bytes repetir(char c) { return Bytes{} + static_cast<std::uint8_t>(c); }

bool algunBit(Bytes bytes) {
  Mitades mitades;
  std::memcpy(&mitades, &bytes, sizeof mitades);
  return (mitades[0] | mitades[1]) != 0;
}

/// Two bytes of a text, to be looked for at `tramo` places together.
class DosBytes {
 public:
  DosBytes(std::string_view texto, std::size_t uno, std::size_t otro)
      : uno_{uno}, otro_{otro}, primero_{repetir(texto[uno])}, segundo_{repetir(texto[otro])} {}

  /// Whether both stand where the text would have them, at any of the places from `desde` on.
  [[nodiscard]] bool estan(char const* desde) const {
    return algunBit((ambos(desde) | ambos(desde + 16)) | (ambos(desde + 32) | ambos(desde + 48)));
  }

 private:
  [[nodiscard]] Bytes ambos(char const* desde) const {
    return static_cast<Bytes>((tomar(desde + uno_) == primero_) & (tomar(desde + otro_) == segundo_));
  }

  std::size_t uno_;
  std::size_t otro_;
  Bytes primero_;
  Bytes segundo_;
};

/// Whether `texto` begins at one of the `tramo` places from `desde` on.
bool hayTexto(char const* desde, std::string_view texto) {
  Bytes alguno{};
  for (std::size_t parte = 0; parte < tramo; parte += sizeof(Bytes)) {
    auto iguales = ~Bytes{};
    for (std::size_t i = 0; i < texto.size(); ++i) {
      iguales &= static_cast<Bytes>(tomar(desde + parte + i) == repetir(texto[i]));
    }
    alguno |= iguales;
  }
  return algunBit(alguno);
}

}  // namespace

bool Aguja::esta(char const* lugar) const {
  return lugar[uno_] == texto_[uno_] && std::memcmp(lugar, texto_.data(), texto_.size()) == 0;
}

std::size_t Aguja::primera(std::string_view bloque, std::size_t desde) const {
  if (bloque.size() < texto_.size()) return nada;
  auto const lugares = bloque.size() - texto_.size() + 1;
  DosBytes const dos{texto_, uno_, otro_};
  auto i = desde;
  for (; i < lugares && lugares - i >= tramo; i += tramo) {
    auto const* const lugar = bloque.data() + i;
    if (dos.estan(lugar) && hayTexto(lugar, texto_)) break;
  }
  for (; i < lugares; ++i) {
    if (esta(bloque.data() + i)) return i;
  }
  return nada;
}

std::size_t Aguja::ultima(std::string_view bloque) const {
  if (bloque.size() < texto_.size()) return nada;
  DosBytes const dos{texto_, uno_, otro_};
  auto i = bloque.size() - texto_.size() + 1;
  for (; i >= tramo; i -= tramo) {
    auto const* const lugar = bloque.data() + i - tramo;
    if (dos.estan(lugar) && hayTexto(lugar, texto_)) break;
  }
  for (; i > 0; --i) {
    if (esta(bloque.data() + i - 1)) return i - 1;
  }
  return nada;
}

}  // namespace zorve
