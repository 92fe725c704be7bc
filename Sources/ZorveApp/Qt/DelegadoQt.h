#pragma once

#include <QObject>
#include <QTimer>
#include <memory>

#include "ZorveApp/ItemDeEstado.h"
#include "ZorveApp/ModeloDeVista.h"
#include "ZorveApp/PanelView.h"
#include "ZorveApp/Qt/Activacion.h"
#include "ZorveApp/Qt/ElementoDeBarra.h"
#include "ZorveApp/Qt/Escritorio.h"
#include "ZorveApp/Qt/GustosDelEscritorio.h"
#include "ZorveApp/Qt/PuenteDelPanel.h"
#include "ZorveApp/Qt/VentanaDeAjustes.h"
#include "ZorveApp/Qt/VentanaDelPanel.h"

namespace zorve {

/// What the delegate works with; everything outlives it.
struct ColaboradoresDelDelegado {
  ModeloDeVista& modelo;
  PanelView& panel;
  EstadoDelPanel& estado;
  VistaAjustes& ajustes;
  ModeloDeAjustes& modeloDeAjustes;
  PreferenciaDeIdioma const& idioma;
  Despachador& despachador;
  AlmacenDeBanderas& banderas;
  Activacion& activacion;
};

/// The program on the desktop: tray icon, panel, settings, and what leads from one to the other.
/// Main thread only.
class DelegadoQt final : public QObject, public CaraDelItem {
  Q_OBJECT

 public:
  explicit DelegadoQt(ColaboradoresDelDelegado con);

  /// Puts the icon up, then prepares the panel when the event loop has nothing else to do.
  void arrancar();
  /// The program was started again, or asked for over the bus, by `testigo`.
  void reabrir(Testigo testigo);

  [[nodiscard]] bool panelVisible() const override;
  void mostrarPanel() override;
  void cerrarPanel() override;
  void mostrarMenu(std::array<EntradaDelMenu, 3> const& entradas) override;
  void mostrarAjustes() override;
  void salir() override;

 private:
  void alClic(ClicEnLaBarra clic);
  /// The panel's window, built and prepared by the first who asks.
  VentanaDelPanel& ventana();
  void avisarSiNoHayBandeja();
  void escribirMenu();
  void atenderGustos();

  ColaboradoresDelDelegado con_;
  std::unique_ptr<Escritorio> escritorio_;
  GustosDelEscritorio gustos_;
  ItemDeEstado item_;
  ElementoDeBarra barra_;
  PuenteDelPanel puente_;
  std::unique_ptr<VentanaDelPanel> ventana_;
  std::unique_ptr<VentanaDeAjustes> ventanaDeAjustes_;
  QTimer minutero_;
  QTimer reposo_;
  Suscripcion idioma_;
};

}  // namespace zorve
