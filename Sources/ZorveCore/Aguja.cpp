#include "ZorveCore/Aguja.h"

#include <cstdint>
#include <cstring>

namespace zorve {

namespace {

using Bytes = std::uint8_t __attribute__((vector_size(16)));
using Mitades = std::uint64_t __attribute__((vector_size(16)));

constexpr std::size_t tramo = 4 * sizeof(Bytes);

Bytes tomar(char const* desde) {
  Bytes bytes;
  std::memcpy(&bytes, desde, sizeof bytes);
  return bytes;
}

Bytes repetir(char c) { return Bytes{} + static_cast<std::uint8_t>(c); }

/// Sixteen places: all ones where the pair of bytes begins.
Bytes pares(char const* desde, Bytes primero, Bytes segundo) {
  return static_cast<Bytes>((tomar(desde) == primero) & (tomar(desde + 1) == segundo));
}

/// Whether the pair begins at one of the `tramo` places from `desde` on.
bool hayPar(char const* desde, Bytes primero, Bytes segundo) {
  auto const juntos = (pares(desde, primero, segundo) | pares(desde + 16, primero, segundo)) |
                      (pares(desde + 32, primero, segundo) | pares(desde + 48, primero, segundo));
  Mitades mitades;
  std::memcpy(&mitades, &juntos, sizeof mitades);
  return (mitades[0] | mitades[1]) != 0;
}

}  // namespace

bool Aguja::esta(std::string_view bloque, std::size_t lugar) const {
  return bloque[lugar + par_] == texto_[par_] &&
         std::memcmp(bloque.data() + lugar, texto_.data(), texto_.size()) == 0;
}

std::size_t Aguja::primera(std::string_view bloque, std::size_t desde) const {
  if (bloque.size() < texto_.size()) return nada;
  auto const lugares = bloque.size() - texto_.size() + 1;
  auto const primero = repetir(texto_[par_]);
  auto const segundo = repetir(texto_[par_ + 1]);
  auto i = desde;
  while (i < lugares) {
    bool const entero = lugares - i >= tramo;
    if (entero && !hayPar(bloque.data() + i + par_, primero, segundo)) {
      i += tramo;
      continue;
    }
    for (auto const fin = entero ? i + tramo : lugares; i < fin; ++i) {
      if (esta(bloque, i)) return i;
    }
  }
  return nada;
}

std::size_t Aguja::ultima(std::string_view bloque) const {
  if (bloque.size() < texto_.size()) return nada;
  auto const primero = repetir(texto_[par_]);
  auto const segundo = repetir(texto_[par_ + 1]);
  auto fin = bloque.size() - texto_.size() + 1;
  while (fin > 0) {
    bool const entero = fin >= tramo;
    auto const inicio = entero ? fin - tramo : 0;
    if (!entero || hayPar(bloque.data() + inicio + par_, primero, segundo)) {
      for (auto i = fin; i > inicio; --i) {
        if (esta(bloque, i - 1)) return i - 1;
      }
    }
    fin = inicio;
  }
  return nada;
}

}  // namespace zorve
