#pragma once

#include <cstdint>

namespace zorve::tui {

/// What a piece of text is, from which its colour follows.
enum class Tinta : std::uint8_t { texto, alto, tenue, debil, acento, ember, error, linea };

/// How a cell is drawn.
struct Trazo {
  Tinta tinta = Tinta::texto;
  bool seleccion = false;
  bool negrita = false;
  bool cursiva = false;
  bool operator==(Trazo const&) const = default;
};

}  // namespace zorve::tui
