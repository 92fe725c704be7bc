#include "ZorveApp/Qt/Vidrio.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include "ZorveApp/Estilo.h"
#include "ZorveApp/Qt/Conversiones.h"

namespace zorve {

namespace {

/// What the dark blur of a desktop comes to, on the average.
constexpr Color base = Color::de8Bits(3, 7, 9);

QLinearGradient degradado(Degradado const& de, double alto) {
  QLinearGradient todo{0, 0, 0, alto};
  todo.setColorAt(0, aQColor(de.arriba));
  todo.setColorAt(1, aQColor(de.abajo));
  return todo;
}

}  // namespace

Vidrio::Vidrio(QQuickItem* padre) : QQuickPaintedItem{padre} {
  setAntialiasing(true);
  connect(this, &Vidrio::cambio, this, [this] { update(); });
}

void Vidrio::paint(QPainter* pintor) {
  QPainterPath forma;
  forma.addRoundedRect(boundingRect(), radio_, radio_);
  pintor->fillPath(forma, aQColor(base.con(densidad_)));
  pintor->fillPath(forma, aQColor(Estilo::tinte));
  pintor->fillPath(forma, degradado(Estilo::luzSuperior, height()));
  pintor->setPen(QPen{QBrush{degradado(Estilo::bordeDeLuz, height())}, 1});
  pintor->drawRoundedRect(boundingRect().adjusted(0.5, 0.5, -0.5, -0.5), radio_ - 0.5, radio_ - 0.5);
}

}  // namespace zorve
