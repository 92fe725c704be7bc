#pragma once

#include <QQmlEngine>
#include <QQuickPaintedItem>

#include "ZorveApp/Qt/Puentes/Conversiones.h"

namespace zorve {

/// The glass behind a window's content: a dark base as dense as `densidad` (in place of the system's blur),
/// the tint, the light from above and an outline that goes from `contornoAlto` to `contornoBajo`. `radio` 0
/// has square corners.
class Vidrio : public QQuickPaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(double densidad MEMBER densidad_ NOTIFY cambio)
  Q_PROPERTY(double radio MEMBER radio_ NOTIFY cambio)
  Q_PROPERTY(QColor contornoAlto MEMBER contornoAlto_ NOTIFY cambio)
  Q_PROPERTY(QColor contornoBajo MEMBER contornoBajo_ NOTIFY cambio)

 public:
  explicit Vidrio(QQuickItem* padre = nullptr);
  void paint(QPainter* pintor) override;

 Q_SIGNALS:
  void cambio();

 private:
  double densidad_ = 1;
  double radio_ = 0;
  QColor contornoAlto_ = aQColor(Estilo::bordeDeLuz.arriba);
  QColor contornoBajo_ = aQColor(Estilo::bordeDeLuz.abajo);
};

}  // namespace zorve
