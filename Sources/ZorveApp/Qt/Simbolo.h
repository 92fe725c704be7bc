#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QString>

namespace zorve {

/// A symbol drawn with lines in the square of the item's shorter side: "lupa", "engranaje", "flechas",
/// "retorno", "equis", "general", "terminal", "acercaDe", "visto". Any other name draws nothing.
class Simbolo : public QQuickPaintedItem {
  Q_OBJECT
  Q_PROPERTY(QString nombre MEMBER nombre_ NOTIFY cambio)
  Q_PROPERTY(QColor color MEMBER color_ NOTIFY cambio)
  Q_PROPERTY(double grosor MEMBER grosor_ NOTIFY cambio)

 public:
  explicit Simbolo(QQuickItem* padre = nullptr);
  void paint(QPainter* pintor) override;

 Q_SIGNALS:
  void cambio();

 private:
  QString nombre_;
  QColor color_ = Qt::white;
  double grosor_ = 1.5;
};

}  // namespace zorve
