#include "ZorveApp/Qt/Dibujo/Simbolo.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace zorve {

namespace {

/// Each path is drawn in a square of 16.
constexpr double lado = 16;

QPointF enCirculo(double angulo, double radio) {
  return {lado / 2 + radio * std::cos(angulo), lado / 2 + radio * std::sin(angulo)};
}

QPainterPath linea(std::initializer_list<QPointF> puntos) {
  QPainterPath trazo{*puntos.begin()};
  for (auto const& punto : puntos) trazo.lineTo(punto);
  return trazo;
}

QPainterPath lupa() {
  auto trazo = linea({{10.6, 10.6}, {14.4, 14.4}});
  trazo.addEllipse(QPointF{6.75, 6.75}, 5, 5);
  return trazo;
}

QPainterPath engranaje() {
  constexpr int dientes = 8;
  constexpr double paso = 2 * std::numbers::pi / dientes;
  QPolygonF borde;
  for (int i = 0; i < dientes; ++i) {
    double const centro = i * paso;
    borde << enCirculo(centro - 0.29 * paso, 5.5) << enCirculo(centro - 0.18 * paso, 7.25)
          << enCirculo(centro + 0.18 * paso, 7.25) << enCirculo(centro + 0.29 * paso, 5.5);
  }
  QPainterPath trazo;
  trazo.addPolygon(borde);
  trazo.closeSubpath();
  trazo.addEllipse(QPointF{lado / 2, lado / 2}, 2.5, 2.5);
  return trazo;
}

QPainterPath flecha(double x, double desde, double hasta) {
  double const ala = hasta < desde ? 2.75 : -2.75;
  auto trazo = linea({{x, desde}, {x, hasta}});
  trazo.addPath(linea({{x - 2.75, hasta + ala}, {x, hasta}, {x + 2.75, hasta + ala}}));
  return trazo;
}

QPainterPath flechas() {
  auto trazo = flecha(4, 13, 3);
  trazo.addPath(flecha(12, 3, 13));
  return trazo;
}

QPainterPath retorno() {
  QPainterPath trazo{{3, 9.5}};
  trazo.lineTo(11, 9.5);
  trazo.arcTo(QRectF{8.75, 4, 5, 5.5}, -90, 180);
  trazo.lineTo(8.5, 4);
  trazo.addPath(linea({{6, 6.5}, {3, 9.5}, {6, 12.5}}));
  return trazo;
}

QPainterPath equis() {
  auto trazo = linea({{4.5, 4.5}, {11.5, 11.5}});
  trazo.addPath(linea({{11.5, 4.5}, {4.5, 11.5}}));
  return trazo;
}

QPainterPath terminal() {
  QPainterPath trazo;
  trazo.addRoundedRect(QRectF{1.75, 2.75, 12.5, 10.5}, 2.5, 2.5);
  trazo.addPath(linea({{4.5, 6}, {6.75, 8}, {4.5, 10}}));
  trazo.addPath(linea({{8.5, 10.25}, {11.5, 10.25}}));
  return trazo;
}

QPainterPath acercaDe() {
  QPainterPath trazo;
  trazo.addEllipse(QPointF{8, 8}, 6.25, 6.25);
  trazo.addPath(linea({{8, 7.5}, {8, 11.25}}));
  trazo.addPath(linea({{8, 4.9}, {8, 5}}));
  return trazo;
}

QPainterPath visto() { return linea({{3.75, 8.5}, {6.75, 11.25}, {12.25, 5}}); }

QPainterPath aro() {
  QPainterPath trazo;
  trazo.addEllipse(QPointF{lado / 2, lado / 2}, 7.25, 7.25);
  return trazo;
}

QPainterPath caja() {
  QPainterPath trazo;
  trazo.addRoundedRect(QRectF{0.75, 0.75, 14.5, 14.5}, 3.5, 3.5);
  return trazo;
}

QPainterPath trazoDe(Simbolo::Forma forma) {
  using enum Simbolo::Forma;
  static constexpr std::array<std::pair<Simbolo::Forma, QPainterPath (*)()>, 10> todos{
      {{Lupa, lupa},
       {Engranaje, engranaje},
       {Flechas, flechas},
       {Retorno, retorno},
       {Equis, equis},
       {Terminal, terminal},
       {AcercaDe, acercaDe},
       {Visto, visto},
       {Aro, aro},
       {Caja, caja}}};
  auto const* const dibujo =
      std::ranges::find(todos, forma, &std::pair<Simbolo::Forma, QPainterPath (*)()>::first);
  return dibujo == todos.end() ? QPainterPath{} : dibujo->second();
}

}  // namespace

Simbolo::Simbolo(QQuickItem* padre) : QQuickPaintedItem{padre} {
  setAntialiasing(true);
  connect(this, &Simbolo::cambio, this, [this] { update(); });
}

void Simbolo::paint(QPainter* pintor) {
  auto const escala = std::min(width(), height()) / lado;
  if (escala <= 0) return;
  pintor->translate((width() - lado * escala) / 2, (height() - lado * escala) / 2);
  pintor->scale(escala, escala);
  pintor->setPen(QPen{color_, grosor_ / escala, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
  pintor->drawPath(trazoDe(forma_));
}

}  // namespace zorve
