#pragma once

#include <QColor>
#include <QQmlEngine>
#include <QQuickPaintedItem>

namespace zorve {

/// A symbol drawn with lines in the square of the item's shorter side.
class Simbolo : public QQuickPaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(zorve::Simbolo::Forma forma MEMBER forma_ NOTIFY cambio)
  Q_PROPERTY(QColor color MEMBER color_ NOTIFY cambio)
  Q_PROPERTY(double grosor MEMBER grosor_ NOTIFY cambio)

 public:
  enum class Forma : int {
    Ninguna,
    Lupa,
    Engranaje,
    Flechas,
    Retorno,
    Equis,
    Terminal,
    AcercaDe,
    Visto,
    Aro,
    Caja
  };
  Q_ENUM(Forma)

  explicit Simbolo(QQuickItem* padre = nullptr);
  void paint(QPainter* pintor) override;

 Q_SIGNALS:
  void cambio();

 private:
  Forma forma_ = Forma::Ninguna;
  QColor color_ = Qt::white;
  double grosor_ = 1.5;
};

}  // namespace zorve
