#include "ZorveApp/Qt/Dibujo/MarcaQt.h"

#include <QPainter>

#include "ZorveApp/Marca.h"
#include "ZorveApp/Qt/Puentes/Conversiones.h"

namespace zorve {

QPainterPath trazoDeMarca(QRectF const& marco) {
  auto const marca = Marca::en({marco.x(), marco.y(), marco.width(), marco.height()});
  auto const& [uno, dos, tres] = marca.triangulo;
  QPainterPath trazo;
  trazo.setFillRule(Qt::WindingFill);
  trazo.addEllipse(aQRectF(marca.elipse));
  trazo.moveTo(uno.x, uno.y);
  trazo.lineTo(dos.x, dos.y);
  trazo.lineTo(tres.x, tres.y);
  trazo.closeSubpath();
  for (auto const& [cuerpo, radio] : marca.rectangulos) trazo.addRoundedRect(aQRectF(cuerpo), radio, radio);
  return trazo;
}

namespace {

/// Where the mark's edges fall on whole pixels: the largest multiple of its side in the middle of `lado`, or
/// all of it where there is no room for one.
QRect marcoNitido(int lado) {
  auto const veces = lado / static_cast<int>(MarcaDeBarra::lado);
  auto const nitido = veces > 0 ? veces * static_cast<int>(MarcaDeBarra::lado) : lado;
  auto const margen = (lado - nitido) / 2;
  return {margen, margen, nitido, nitido};
}

}  // namespace

QImage imagenDeMarca(int lado, QColor const& color) {
  QImage imagen{lado, lado, QImage::Format_ARGB32_Premultiplied};
  imagen.fill(Qt::transparent);
  QPainter pintor{&imagen};
  pintor.setRenderHint(QPainter::Antialiasing);
  pintor.fillPath(trazoDeMarca(QRectF{marcoNitido(lado)}), color);
  return imagen;
}

MarcaQt::MarcaQt(QQuickItem* padre) : QQuickPaintedItem{padre} {
  setAntialiasing(true);
  connect(this, &MarcaQt::cambio, this, [this] { update(); });
}

void MarcaQt::paint(QPainter* pintor) { pintor->fillPath(trazoDeMarca(boundingRect()), color_); }

}  // namespace zorve
