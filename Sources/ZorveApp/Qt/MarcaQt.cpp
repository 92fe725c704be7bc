#include "ZorveApp/Qt/MarcaQt.h"

#include <QPainter>

#include "ZorveApp/Marca.h"
#include "ZorveApp/Qt/Conversiones.h"

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

QImage imagenDeMarca(int lado, QColor const& color) {
  QImage imagen{lado, lado, QImage::Format_ARGB32_Premultiplied};
  imagen.fill(Qt::transparent);
  QPainter pintor{&imagen};
  pintor.setRenderHint(QPainter::Antialiasing);
  pintor.fillPath(trazoDeMarca(QRectF{imagen.rect()}), color);
  return imagen;
}

MarcaQt::MarcaQt(QQuickItem* padre) : QQuickPaintedItem{padre} {
  setAntialiasing(true);
  connect(this, &MarcaQt::cambio, this, [this] { update(); });
}

void MarcaQt::paint(QPainter* pintor) { pintor->fillPath(trazoDeMarca(boundingRect()), color_); }

}  // namespace zorve
