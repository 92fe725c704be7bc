#pragma once

#include <array>
#include <string>

#include "ZorveApp/Estilo.h"

namespace zorve {

/// x to the right, y down.
struct Punto {
  double x = 0;
  double y = 0;
  bool operator==(Punto const&) const = default;
};

struct Rectangulo {
  double x = 0;
  double y = 0;
  double ancho = 0;
  double alto = 0;
  bool operator==(Rectangulo const&) const = default;
};

struct RectanguloRedondeado {
  Rectangulo marco;
  double radio = 0;
  bool operator==(RectanguloRedondeado const&) const = default;
};

/// The brand mark: one shape made of four, filled together.
struct Marca {
  /// Fills its frame.
  Rectangulo elipse;
  /// A move to the first corner, lines to the other two, closed.
  std::array<Punto, 3> triangulo;
  std::array<RectanguloRedondeado, 2> rectangulos;

  /// The mark drawn in `marco`, every length a fraction of it; it is meant for squares and stretches in
  /// others (radii follow the shorter side).
  [[nodiscard]] static Marca en(Rectangulo const& marco);
  bool operator==(Marca const&) const = default;
};

/// The side of the status item's image, in points and in pixels of the picture drawn for it.
namespace MarcaDeBarra {
inline constexpr double lado = 18;
inline constexpr double escala = 2;
}  // namespace MarcaDeBarra

/// The mark alone, filled with `color`, as an SVG document with a square view of `lado`.
[[nodiscard]] std::string marcaEnSvg(double lado, Color const& color);
/// The application's icon: the mark on its dark tile, as an SVG document with a square view of 1024.
[[nodiscard]] std::string iconoEnSvg();

}  // namespace zorve
