#pragma once

#include <QQuickView>

#include "ZorveApp/Qt/PuenteDeAjustes.h"

namespace zorve {

/// The settings window: built at its first showing, then only shown and hidden. Main thread only.
class VentanaDeAjustes final : public QQuickView {
  Q_OBJECT

 public:
  /// Everything referenced outlives the window.
  VentanaDeAjustes(VistaAjustes& vista, ModeloDeAjustes& modelo, PreferenciaDeIdioma const& idioma);
  ~VentanaDeAjustes() override;

  /// Loads, and brings the window to the front with the keyboard; the first time in the middle of the screen.
  void mostrar();

 protected:
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  void construir();

  VistaAjustes& vista_;
  PuenteDeAjustes puente_;
};

}  // namespace zorve
