#include "ZorveApp/Qt/DelegadoQt.h"

#include <malloc.h>

#include <QCoreApplication>
#include <chrono>

#include "ZorveApp/Qt/Dibujo/TiposDeLetra.h"
#include "ZorveApp/Qt/Puentes/Conversiones.h"
#include "ZorveApp/Qt/Puentes/Prestamo.h"
#include "ZorveApp/Qt/Puentes/TextosPropios.h"
#include "ZorveApp/Qt/Ventanas/ExtensionDeGnome.h"
#include "ZorveApp/Qt/Ventanas/GestorDeArchivos.h"

namespace zorve {

namespace {

constexpr std::chrono::seconds pasoDelReloj{20};
constexpr std::chrono::seconds esperaDeLaBandeja{3};
constexpr std::chrono::milliseconds esperaDeReposo{500};
constexpr auto banderaSinBandeja = "zorve.avisoDeBandejaMostrado";

/// Gives the system what the last loads have left free.
void devolverMemoria() {
#ifdef __GLIBC__
  malloc_trim(0);
#endif
}

}  // namespace

DelegadoQt::DelegadoQt(ColaboradoresDelDelegadoQt con)
    : con_{con},
      sistema_{sistemaDeVentanasEnUso()},
      item_{*this, con.estado, con.idioma, con.despachador, PrimerArranque{con.banderas}},
      barra_{{[this](ClicEnLaBarra clic) { alClic(clic); },
              [this](EntradaDelMenu::Clase cual) { item_.elegir(cual); }, [this] { item_.reabrir(); }}},
      puente_{con.panel, con.idioma} {
  con_.panel.acciones = {
      [this] { cerrarPanel(); }, [this] { item_.salir(); },
      [this](std::string const& cual) { mostrarEnElGestorDeArchivos(cual, con_.activacion); }};
  con_.ajustes.acciones = {[this] { ventanaDeAjustes_->hide(); }, [this] { item_.salir(); }};
  minutero_.setInterval(pasoDelReloj);
  reposo_.setInterval(esperaDeReposo);
  reposo_.setSingleShot(true);
  connect(&reposo_, &QTimer::timeout, this, devolverMemoria);
  connect(&puente_.datos(), &DatosDelPanel::menuPedido, this, &DelegadoQt::mostrarMenuDeFila);
  connect(&minutero_, &QTimer::timeout, &puente_, &PuenteDelPanel::actualizarTiempos);
  connect(&gustos_, &GustosDelEscritorio::cambio, this, &DelegadoQt::atenderGustos);
  idioma_ = con_.idioma.idioma().observar([this] { escribirMenu(); });
  escribirMenu();
}

void DelegadoQt::arrancar() {
  barra_.aparecer();
  item_.mostrarElPanelSiEsLaPrimeraVez();
  QTimer::singleShot(0, this, [this] {
    ventana();
    gustos_.preguntar();
  });
  QTimer::singleShot(esperaDeLaBandeja, this, &DelegadoQt::avisarSiNoHayBandeja);
}

VentanaDelPanel& DelegadoQt::ventana() {
  if (ventana_) return *ventana_;
  preferirEmojiEnColor();
  ventana_ = std::make_unique<VentanaDelPanel>(*sistema_,
                                               [this](Pulsacion const& tecla) { return alPulsar(tecla); });
  connect(ventana_.get(), &VentanaDelPanel::menuLlamado, &puente_.datos(), &DatosDelPanel::menuLlamado);
  connect(ventana_.get(), &VentanaDelPanel::escondida, this, [this] { menuDeFila_.cerrar(); });
  connect(ventana_.get(), &VentanaDelPanel::escondida, &minutero_, &QTimer::stop);
  // Counted from the first of several quick showings, so that they leave no more behind than one does.
  connect(ventana_.get(), &VentanaDelPanel::escondida, &reposo_, [this] {
    if (!reposo_.isActive()) reposo_.start();
  });
  prestar(*ventana_->engine(), puente_.datos());
  prestar(*ventana_->engine(), estilo_);
  estilo_.vestir(gustos_.dePantalla());
  ventana_->preparar();
  return *ventana_;
}

/// Return with nothing to open asks for another search.
bool DelegadoQt::alPulsar(Pulsacion const& tecla) {
  bool const suya = con_.panel.tecla(tecla);
  if (suya && tecla.tecla == Tecla::retorno && con_.panel.cantidadDeFilas() == 0) {
    Q_EMIT puente_.datos().otraBusqueda();
  }
  return suya;
}

void DelegadoQt::avisarSiNoHayBandeja() {
  con_.activacion.agotar();
  if (barra_.puesto() || con_.banderas.bandera(banderaSinBandeja)) return;
  con_.banderas.marcar(banderaSinBandeja);
  auto const idioma = *con_.idioma.idioma();
  puente_.escribirAvisoPropio(sobreGnome() ? TextosPropios::avisoSinBandejaEnGnome(idioma)
                                           : TextosPropios::avisoSinBandeja(idioma));
  connect(
      &ventana(), &VentanaDelPanel::escondida, &puente_, [this] { puente_.escribirAvisoPropio({}); },
      Qt::SingleShotConnection);
}

void DelegadoQt::escribirMenu() { barra_.ponerMenu(menuDelItem(textosDe(con_.idioma))); }

void DelegadoQt::atenderGustos() {
  barra_.escribirBarraClara(gustos_.claro());
  auto const& gustos = gustos_.dePantalla();
  ventana().exigirOpaco(gustos.altoContraste);
  estilo_.vestir(gustos);
  ventana().escribirEscala(gustos.escala);
  if (ventanaDeAjustes_) ventanaDeAjustes_->vestir(gustos);
}

void DelegadoQt::mostrarMenuDeFila(int posicion, QPointF const& donde) {
  if (posicion < 0 || static_cast<std::size_t>(posicion) >= con_.panel.cantidadDeFilas()) return;
  auto const cual = static_cast<std::size_t>(posicion);
  auto const entradas = con_.panel.abrirMenuDeFila(cual);
  menuDeFila_.abrir(entradas, ventana(), ventana().mapToGlobal(donde.toPoint()), gustos_.dePantalla().escala,
                    [this, id = con_.panel.idDeFila(cual)](EntradaDelMenuDeFila::Clase elegida) {
                      con_.panel.elegirEnElMenu(id, elegida);
                    });
}

void DelegadoQt::reabrir(Testigo testigo, ServicioDeSesion::Quien quien) {
  sinTeclado_ = testigo.vacio() && quien == ServicioDeSesion::Quien::cualquiera;
  con_.activacion.recibir(std::move(testigo));
  item_.reabrir();
  sinTeclado_ = false;
}

void DelegadoQt::alClic(ClicEnLaBarra clic) {
  bool const quisoCerrar = !clic.derecho && !clic.conControl && ventana_ && ventana_->tomarElCierre();
  if (!quisoCerrar) item_.clic(clic);
}

bool DelegadoQt::panelVisible() const { return ventana_ && ventana_->mostrada(); }

void DelegadoQt::mostrarPanel() {
  bool const aparece = !panelVisible();
  ventana().mostrarEn(barra_.ancla(), !sinTeclado_);
  if (aparece) Q_EMIT puente_.datos().aparecio();
  con_.activacion.agotar();
  puente_.actualizarTiempos();
  minutero_.start();
  con_.panel.aparecer();
}

void DelegadoQt::cerrarPanel() {
  if (ventana_) ventana_->esconder();
}

void DelegadoQt::mostrarMenu(std::array<EntradaDelMenu, 3> const& entradas) {
  barra_.ponerMenu(entradas);
  barra_.abrirMenu();
}

void DelegadoQt::mostrarAjustes() {
  if (!ventanaDeAjustes_) {
    ventanaDeAjustes_ = std::make_unique<VentanaDeAjustes>(con_.ajustes, con_.idioma, con_.activacion);
    ventanaDeAjustes_->vestir(gustos_.dePantalla());
  }
  ventanaDeAjustes_->mostrar();
}

void DelegadoQt::salir() { QCoreApplication::quit(); }

}  // namespace zorve
