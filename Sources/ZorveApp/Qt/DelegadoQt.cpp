#include "ZorveApp/Qt/DelegadoQt.h"

#include <malloc.h>

#include <QCoreApplication>
#include <QQmlContext>
#include <chrono>

#include "ZorveApp/Qt/Conversiones.h"
#include "ZorveApp/Qt/EstiloQt.h"
#include "ZorveApp/Qt/TextosPropios.h"
#include "ZorveApp/Qt/TiposDeLetra.h"

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

DelegadoQt::DelegadoQt(ColaboradoresDelDelegado con)
    : con_{con},
      escritorio_{escritorioEnUso()},
      item_{*this, con.estado, con.idioma, con.despachador, PrimerArranque{con.banderas}},
      barra_{{[this](ClicEnLaBarra clic) { alClic(clic); },
              [this](EntradaDelMenu::Clase cual) { item_.elegir(cual); }, [this] { item_.reabrir(); }}},
      puente_{con.modelo, con.panel, con.idioma} {
  con_.panel.acciones = {[this] { cerrarPanel(); }, [this] { item_.salir(); }};
  con_.ajustes.acciones = {[this] { ventanaDeAjustes_->hide(); }, [this] { item_.salir(); }};
  minutero_.setInterval(pasoDelReloj);
  reposo_.setInterval(esperaDeReposo);
  reposo_.setSingleShot(true);
  connect(&reposo_, &QTimer::timeout, this, devolverMemoria);
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
  ventana_ = std::make_unique<VentanaDelPanel>(
      *escritorio_, [this](Pulsacion const& tecla) { return con_.panel.tecla(tecla); });
  connect(ventana_.get(), &VentanaDelPanel::escondida, &minutero_, &QTimer::stop);
  // Counted from the first of several quick showings, so that they leave no more behind than one does.
  connect(ventana_.get(), &VentanaDelPanel::escondida, &reposo_, [this] {
    if (!reposo_.isActive()) reposo_.start();
  });
  ventana_->rootContext()->setContextProperty(QStringLiteral("panel"), &puente_);
  ventana_->rootContext()->setContextProperty(QStringLiteral("estilo"), estiloParaQml(gustos_.dePantalla()));
  ventana_->preparar();
  return *ventana_;
}

void DelegadoQt::avisarSiNoHayBandeja() {
  con_.activacion.agotar();
  if (barra_.puesto() || con_.banderas.bandera(banderaSinBandeja)) return;
  con_.banderas.marcar(banderaSinBandeja);
  puente_.escribirAvisoPropio(TextosPropios::avisoSinBandeja(*con_.idioma.idioma()));
  connect(
      &ventana(), &VentanaDelPanel::escondida, &puente_, [this] { puente_.escribirAvisoPropio({}); },
      Qt::SingleShotConnection);
}

void DelegadoQt::escribirMenu() { barra_.ponerMenu(menuDelItem(Textos{*con_.idioma.idioma()})); }

void DelegadoQt::atenderGustos() {
  barra_.escribirBarraClara(gustos_.claro());
  auto const& gustos = gustos_.dePantalla();
  ventana().exigirOpaco(gustos.altoContraste);
  ventana().rootContext()->setContextProperty(QStringLiteral("estilo"), estiloParaQml(gustos));
  ventana().escribirEscala(gustos.escala);
  if (ventanaDeAjustes_) ventanaDeAjustes_->vestir(gustos);
}

void DelegadoQt::reabrir(Testigo testigo) {
  con_.activacion.recibir(std::move(testigo));
  item_.reabrir();
}

void DelegadoQt::alClic(ClicEnLaBarra clic) {
  bool const quisoCerrar = !clic.derecho && !clic.conControl && ventana_ && ventana_->tomarElCierre();
  if (!quisoCerrar) item_.clic(clic);
}

bool DelegadoQt::panelVisible() const { return ventana_ && ventana_->isVisible(); }

void DelegadoQt::mostrarPanel() {
  ventana().mostrarEn(barra_.ancla());
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
    ventanaDeAjustes_ =
        std::make_unique<VentanaDeAjustes>(con_.ajustes, con_.modeloDeAjustes, con_.idioma, con_.activacion);
    ventanaDeAjustes_->vestir(gustos_.dePantalla());
  }
  ventanaDeAjustes_->mostrar();
}

void DelegadoQt::salir() { QCoreApplication::quit(); }

}  // namespace zorve
