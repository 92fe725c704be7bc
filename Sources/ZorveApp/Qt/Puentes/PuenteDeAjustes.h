#pragma once

#include <QObject>
#include <vector>

#include "ZorveApp/Qt/Puentes/AvisoUnico.h"
#include "ZorveApp/Qt/Puentes/DatosDeAjustes.h"
#include "ZorveApp/VistaAjustes.h"

namespace zorve {

/// Brings the settings' values to QML, and what QML's views report to the settings. Changes are gathered and
/// told once, when the event loop comes round. Main thread only.
class PuenteDeAjustes final : public QObject {
  Q_OBJECT

 public:
  /// Everything referenced outlives this object.
  PuenteDeAjustes(VistaAjustes& vista, PreferenciaDeIdioma const& idioma, QObject* padre = nullptr);

  /// To lend to an engine.
  [[nodiscard]] DatosDeAjustes& datos() { return datos_; }

 private:
  void actualizar();
  void clicEnSeccion(int cual);
  void clicEnOpcion(int grupo, int opcion);
  [[nodiscard]] ContenidoDeAjustes contenido() const;
  [[nodiscard]] QString pie() const;

  VistaAjustes& vista_;
  PreferenciaDeIdioma const& idioma_;
  DatosDeAjustes datos_{nullptr};
  AvisoUnico aviso_{[this] { actualizar(); }};
  std::vector<Suscripcion> suscripciones_;
};

}  // namespace zorve
