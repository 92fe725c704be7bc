#pragma once

#include <QQuickView>

#include "ZorveApp/Qt/Activacion/Activacion.h"
#include "ZorveApp/Qt/Dibujo/EstiloQt.h"
#include "ZorveApp/Qt/Puentes/PuenteDeAjustes.h"

namespace zorve {

/// The settings window: built at its first showing, then only shown and hidden. Main thread only.
class VentanaDeAjustes final : public QQuickView {
  Q_OBJECT

 public:
  /// Everything referenced outlives the window.
  VentanaDeAjustes(VistaAjustes& vista, PreferenciaDeIdioma const& idioma, Activacion& activacion);
  ~VentanaDeAjustes() override;

  /// Colours and size for what the person asks of every window.
  void vestir(GustosDePantalla const& gustos);
  /// Loads, and brings the window to the front with the keyboard; the first time in the middle of the
  /// screen with the pointer.
  void mostrar();

 protected:
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  void construir();

  VistaAjustes& vista_;
  PuenteDeAjustes puente_;
  EstiloQt estilo_{nullptr};
  Activacion& activacion_;
  /// Whether the window draws its own frame, where the system draws none.
  bool conMarco_;
};

}  // namespace zorve
