#pragma once

#include <QObject>
#include <QString>
#include <QVariantList>
#include <vector>

#include "ZorveApp/PanelView.h"
#include "ZorveApp/Qt/Puentes/AvisoUnico.h"
#include "ZorveApp/Qt/Puentes/DatosDelPanel.h"
#include "ZorveApp/Qt/Puentes/FilasQt.h"

namespace zorve {

/// Brings the panel's values to QML, and what QML's views report to the panel. Changes of the panel are
/// gathered and told once, when the event loop comes round. Main thread only.
class PuenteDelPanel final : public QObject {
  Q_OBJECT

 public:
  /// Everything referenced outlives this object.
  PuenteDelPanel(PanelView& panel, PreferenciaDeIdioma const& idioma, QObject* padre = nullptr);

  /// To lend to an engine.
  [[nodiscard]] DatosDelPanel& datos() { return datos_; }

  /// A line of this desktop's own at the end of the band; an empty text takes it away.
  void escribirAvisoPropio(QString texto);
  /// Tells at once whatever has changed.
  void actualizar();
  void actualizarTiempos() { filas_.actualizarTiempos(); }

 private:
  void atenderVistas();
  void escribirTextos();
  [[nodiscard]] QVariantList nuevaBanda() const;
  [[nodiscard]] QVariantList leyenda() const;

  PanelView& panel_;
  PreferenciaDeIdioma const& idioma_;
  FilasQt filas_;
  DatosDelPanel datos_{nullptr};
  QString avisoPropio_;
  AvisoUnico aviso_{[this] { actualizar(); }};
  std::vector<Suscripcion> suscripciones_;
};

}  // namespace zorve
