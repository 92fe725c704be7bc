#include "ZorveApp/Qt/Dibujo/Vidrio.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include "ZorveApp/Qt/Dibujo/FondoDeVidrio.h"

namespace zorve {

namespace {

QLinearGradient degradado(QColor const& arriba, QColor const& abajo, double alto) {
  QLinearGradient todo{0, 0, 0, alto};
  todo.setColorAt(0, arriba);
  todo.setColorAt(1, abajo);
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
  auto const escala = pintor->deviceTransform().m22();
  QBrush fondo{fondoDeVidrio(qRound(height() * escala), densidad_)};
  fondo.setTransform(QTransform::fromScale(1 / escala, 1 / escala));
  pintor->fillPath(forma, fondo);
  pintor->setPen(QPen{QBrush{degradado(contornoAlto_, contornoBajo_, height())}, 1});
  pintor->drawRoundedRect(boundingRect().adjusted(0.5, 0.5, -0.5, -0.5), radio_ - 0.5, radio_ - 0.5);
}

}  // namespace zorve
