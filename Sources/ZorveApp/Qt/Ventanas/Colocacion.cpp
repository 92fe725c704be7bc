#include "ZorveApp/Qt/Ventanas/Colocacion.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace zorve {

namespace {

enum class Borde : std::uint8_t { arriba, abajo, izquierda, derecha };

/// Half of an icon, where only the click's point is known and no bar announces its size.
constexpr int medioIcono = 14;

int fin(int comienzo, int largo) { return comienzo + largo; }

Borde bordeMasCercano(QPoint punto, QRect const& pantalla) {
  std::array<int, 4> const distancias{punto.y() - pantalla.top(), pantalla.bottom() - punto.y(),
                                      punto.x() - pantalla.left(), pantalla.right() - punto.x()};
  return static_cast<Borde>(std::ranges::min_element(distancias) - distancias.begin());
}

Borde bordeDeLaBarra(QPoint punto, QRect const& pantalla, QRect const& libre) {
  if (punto.y() < libre.top()) return Borde::arriba;
  if (punto.y() > libre.bottom()) return Borde::abajo;
  if (punto.x() < libre.left()) return Borde::izquierda;
  if (punto.x() > libre.right()) return Borde::derecha;
  return bordeMasCercano(punto, pantalla);
}

int dentro(int valor, int largo, int desde, int cuanto) {
  return std::max(desde + holgura, std::min(valor, fin(desde, cuanto) - largo - holgura));
}

QRect conCuerpo(Ancla const& ancla, bool dentroDeLoLibre) {
  bool const crece = ancla.soloPunto && dentroDeLoLibre;
  return crece ? ancla.icono.adjusted(-medioIcono, -medioIcono, medioIcono, medioIcono) : ancla.icono;
}

QPoint junto(QSize tamano, QRect const& icono, QRect const& libre, Borde borde) {
  auto const centro = icono.center();
  auto const x = centro.x() - tamano.width() / 2;
  auto const y = centro.y() - tamano.height() / 2;
  switch (borde) {
    case Borde::arriba:
      return {x, std::max(fin(icono.top(), icono.height()), libre.top()) + holgura};
    case Borde::abajo:
      return {x, std::min(icono.top(), fin(libre.top(), libre.height())) - tamano.height() - holgura};
    case Borde::izquierda:
      return {std::max(fin(icono.left(), icono.width()), libre.left()) + holgura, y};
    default:
      return {std::min(icono.left(), fin(libre.left(), libre.width())) - tamano.width() - holgura, y};
  }
}

}  // namespace

QSize tamanoQueCabe(QSize tamano, QRect const& libre) {
  return tamano.boundedTo(libre.size() - QSize{2 * holgura, 2 * holgura}).expandedTo({1, 1});
}

QPoint colocar(QSize tamano, Ancla const& ancla, QRect const& pantalla, QRect const& libre) {
  auto const centro = ancla.icono.center();
  auto const icono = conCuerpo(ancla, libre.contains(centro));
  auto const punto = junto(tamano, icono, libre, bordeDeLaBarra(centro, pantalla, libre));
  return {dentro(punto.x(), tamano.width(), libre.x(), libre.width()),
          dentro(punto.y(), tamano.height(), libre.y(), libre.height())};
}

QPoint colocarSinAncla(QSize tamano, QRect const& libre) {
  auto const sobrante = libre.height() - tamano.height();
  return {dentro(libre.center().x() - tamano.width() / 2, tamano.width(), libre.x(), libre.width()),
          dentro(libre.y() + sobrante / 3, tamano.height(), libre.y(), libre.height())};
}

}  // namespace zorve
