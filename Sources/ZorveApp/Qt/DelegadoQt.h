#pragma once

#include <QObject>
#include <QTimer>
#include <memory>

#include "ZorveApp/ItemDeEstado.h"
#include "ZorveApp/PanelView.h"
#include "ZorveApp/Qt/Activacion/Activacion.h"
#include "ZorveApp/Qt/Activacion/ServicioDeSesion.h"
#include "ZorveApp/Qt/Bandeja/ElementoDeBarra.h"
#include "ZorveApp/Qt/Dibujo/EstiloQt.h"
#include "ZorveApp/Qt/Puentes/PuenteDelPanel.h"
#include "ZorveApp/Qt/Ventanas/GustosDelEscritorio.h"
#include "ZorveApp/Qt/Ventanas/MenuDeFilaQt.h"
#include "ZorveApp/Qt/Ventanas/SistemaDeVentanas.h"
#include "ZorveApp/Qt/Ventanas/VentanaDeAjustes.h"
#include "ZorveApp/Qt/Ventanas/VentanaDelPanel.h"

namespace zorve {

/// What the delegate works with; everything outlives it.
struct ColaboradoresDelDelegadoQt {
  PanelView& panel;
  EstadoDelPanel& estado;
  VistaAjustes& ajustes;
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
  explicit DelegadoQt(ColaboradoresDelDelegadoQt con);

  /// Puts the icon up, then prepares the panel when the event loop has nothing else to do.
  void arrancar();
  /// The program was started again, or asked for over the bus, by `testigo`.
  void reabrir(Testigo testigo, ServicioDeSesion::Quien quien);

  [[nodiscard]] bool panelVisible() const override;
  void mostrarPanel() override;
  void cerrarPanel() override;
  void mostrarMenu(std::array<EntradaDelMenu, 3> const& entradas) override;
  void mostrarAjustes() override;
  void salir() override;

 private:
  void alClic(ClicEnLaBarra clic);
  bool alPulsar(Pulsacion const& tecla);
  /// The panel's window, built and prepared by the first who asks.
  VentanaDelPanel& ventana();
  void avisarSiNoHayBandeja();
  void escribirMenu();
  void mostrarMenuDeFila(int posicion, QPointF const& donde);
  void atenderGustos();

  ColaboradoresDelDelegadoQt con_;
  std::unique_ptr<SistemaDeVentanas> sistema_;
  GustosDelEscritorio gustos_;
  ItemDeEstado item_;
  /// The panel is shown for somebody whom nobody gave a leave: the keyboard stays where it is.
  bool sinTeclado_ = false;
  ElementoDeBarra barra_;
  PuenteDelPanel puente_;
  EstiloQt estilo_{nullptr};
  std::unique_ptr<VentanaDelPanel> ventana_;
  MenuDeFilaQt menuDeFila_;
  std::unique_ptr<VentanaDeAjustes> ventanaDeAjustes_;
  QTimer minutero_;
  QTimer reposo_;
  Suscripcion idioma_;
};

}  // namespace zorve
