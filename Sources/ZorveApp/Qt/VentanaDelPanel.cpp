#include "ZorveApp/Qt/VentanaDelPanel.h"

#include <QCursor>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QQuickItem>
#include <utility>

#include "ZorveApp/Estilo.h"
#include "ZorveApp/Qt/TamanoFijo.h"
#include "ZorveApp/Qt/TeclasQt.h"

namespace zorve {

namespace {

constexpr QSize tamanoDelPanel{static_cast<int>(Medidas::panel.ancho), static_cast<int>(Medidas::panel.alto)};
constexpr double densidadConDesenfoque = 0.72;
constexpr double densidadSinDesenfoque = 0.95;
constexpr qint64 momento = 400;
constexpr int alcanceDelIcono = 20;

qint64 milisegundos() {
  static QElapsedTimer const reloj = [] {
    QElapsedTimer nuevo;
    nuevo.start();
    return nuevo;
  }();
  return reloj.elapsed();
}

QScreen& pantallaDe(QPoint punto) {
  auto* const pantalla = QGuiApplication::screenAt(punto);
  return pantalla ? *pantalla : *QGuiApplication::primaryScreen();
}

}  // namespace

VentanaDelPanel::VentanaDelPanel(Escritorio& escritorio, std::function<bool(Pulsacion const&)> alPulsar)
    : escritorio_{escritorio}, alPulsar_{std::move(alPulsar)} {
  setTitle(QStringLiteral("Zorve"));
  setColor(Qt::transparent);
  setResizeMode(QQuickView::SizeRootObjectToView);
  escribirEscala(1);
  setPersistentGraphics(true);
  setPersistentSceneGraph(true);
  escritorio_.preparar(*this);
  connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &VentanaDelPanel::alCambiarElFoco);
}

void VentanaDelPanel::preparar() {
  if (status() != QQuickView::Null) return;
  setSource(QUrl{QStringLiteral("qrc:/Zorve/Vistas/Panel.qml")});
  create();
  vestir();
}

void VentanaDelPanel::exigirOpaco(bool si) {
  exigeOpaco_ = si;
  vestir();
}

void VentanaDelPanel::escribirEscala(double escala) {
  tamano_ = tamanoDelPanel * escala;
  fijarTamano(*this, tamano_);
}

void VentanaDelPanel::vestir() {
  if (!rootObject()) return;
  rootObject()->setProperty("opaco", exigeOpaco_ || !escritorio_.hayTransparencia());
  rootObject()->setProperty("densidad",
                            escritorio_.hayDesenfoque() ? densidadConDesenfoque : densidadSinDesenfoque);
}

void VentanaDelPanel::colocarEn(std::optional<Ancla> const& ancla) {
  auto& pantalla = pantallaDe(ancla ? ancla->icono.center() : QCursor::pos());
  auto const libre = escritorio_.areaLibre(pantalla);
  setScreen(&pantalla);
  fijarTamano(*this, tamanoQueCabe(tamano_, libre));
  setPosition(ancla ? colocar(size(), *ancla, pantalla.geometry(), libre) : colocarSinAncla(size(), libre));
}

void VentanaDelPanel::mostrarEn(std::optional<Ancla> const& ancla) {
  preparar();
  vestir();
  if (!isVisible()) colocarEn(ancla);
  zonaDelIcono_ = ancla ? ancla->icono : QRect{};
  if (ancla && ancla->soloPunto) {
    zonaDelIcono_.adjust(-alcanceDelIcono, -alcanceDelIcono, alcanceDelIcono, alcanceDelIcono);
  }
  show();
  raise();
  escritorio_.tomarElTeclado(*this);
  escritorio_.vigilarPulsaciones(*this, [this](QPoint donde) { alPulsarFuera(donde); });
}

void VentanaDelPanel::esconder() {
  if (!isVisible()) return;
  escritorio_.devolverElTeclado(*this);
  ocultar();
}

void VentanaDelPanel::ocultar() {
  escritorio_.vigilarPulsaciones(*this, {});
  hide();
  Q_EMIT escondida();
}

bool VentanaDelPanel::tomarElCierre() {
  auto const cerrada = std::exchange(cerradaPorFuera_, -1);
  return cerrada >= 0 && milisegundos() - cerrada < momento;
}

void VentanaDelPanel::alPulsarFuera(QPoint donde) {
  if (zonaDelIcono_.contains(donde) || !isVisible()) return;
  cerradaPorFuera_ = milisegundos();
  escritorio_.soltarElTeclado(*this);
  ocultar();
}

void VentanaDelPanel::alCambiarElFoco() {
  auto const* const foco = QGuiApplication::focusWindow();
  bool const esUnMenu = foco && foco->type() == Qt::Popup;
  if (!isVisible() || foco == this || esUnMenu || (!foco && escritorio_.tieneElTeclado(*this))) return;
  cerradaPorFuera_ = milisegundos();
  esconder();
}

void VentanaDelPanel::keyPressEvent(QKeyEvent* evento) {
  if (alPulsar_(aPulsacion(*evento))) {
    evento->accept();
    return;
  }
  QQuickView::keyPressEvent(evento);
}

void VentanaDelPanel::closeEvent(QCloseEvent* evento) {
  esconder();
  QQuickView::closeEvent(evento);
}

}  // namespace zorve
