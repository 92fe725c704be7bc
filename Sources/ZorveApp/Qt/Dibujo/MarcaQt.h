#pragma once

#include <QColor>
#include <QImage>
#include <QPainterPath>
#include <QQmlEngine>
#include <QQuickPaintedItem>

namespace zorve {

/// The brand mark filling `marco`.
[[nodiscard]] QPainterPath trazoDeMarca(QRectF const& marco);

/// The mark in one colour on nothing, in an image `lado` pixels wide and high: sharp, at the largest whole
/// size that fits.
[[nodiscard]] QImage imagenDeMarca(int lado, QColor const& color);

/// The mark as a QML item.
class MarcaQt : public QQuickPaintedItem {
  Q_OBJECT
  QML_NAMED_ELEMENT(MarcaDibujada)
  Q_PROPERTY(QColor color MEMBER color_ NOTIFY cambio)

 public:
  explicit MarcaQt(QQuickItem* padre = nullptr);
  void paint(QPainter* pintor) override;

 Q_SIGNALS:
  void cambio();

 private:
  QColor color_ = Qt::white;
};

}  // namespace zorve
