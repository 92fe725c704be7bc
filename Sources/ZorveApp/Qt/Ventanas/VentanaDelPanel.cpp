#include "ZorveApp/Qt/Ventanas/VentanaDelPanel.h"

#include <QApplication>
#include <QCursor>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainterPath>
#include <QQuickItem>
#include <QWidget>
#include <utility>

#include "ZorveApp/Estilo.h"
#include "ZorveApp/Qt/Puentes/TeclasQt.h"
#include "ZorveApp/Qt/Ventanas/TamanoFijo.h"
#include "ZorveApp/Qt/Ventanas/X11.h"

namespace zorve {

namespace {

constexpr QSize tamanoDelPanel{static_cast<int>(Medidas::panel.ancho), static_cast<int>(Medidas::panel.alto)};
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

/// The panel's outline in native pixels.
QRegion redonda(QSize tamano, double radio) {
  QPainterPath forma;
  forma.addRoundedRect(QRectF{QPointF{0, 0}, tamano}, radio, radio);
  return QRegion{forma.toFillPolygon().toPolygon()};
}

bool llamaAlMenu(QKeyEvent const& evento) {
  auto const modificadores = evento.modifiers() & ~Qt::KeypadModifier;
  return (evento.key() == Qt::Key_Menu && modificadores == Qt::NoModifier) ||
         (evento.key() == Qt::Key_F10 && modificadores == Qt::ShiftModifier);
}

QScreen& pantallaDe(QPoint punto) {
  auto* const pantalla = QGuiApplication::screenAt(punto);
  return pantalla ? *pantalla : *QGuiApplication::primaryScreen();
}

}  // namespace

VentanaDelPanel::VentanaDelPanel(SistemaDeVentanas& sistema, std::function<bool(Pulsacion const&)> alPulsar)
    : sistema_{sistema}, alPulsar_{std::move(alPulsar)} {
  setTitle(QStringLiteral("Zorve"));
  setColor(Qt::transparent);
  setResizeMode(QQuickView::SizeRootObjectToView);
  escribirEscala(1);
  setPersistentGraphics(true);
  setPersistentSceneGraph(true);
  sistema_.preparar(*this);
  ida_.setSingleShot(true);
  connect(&ida_, &QTimer::timeout, this, &QWindow::hide);
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
  if (isVisible()) desenfocar();
}

void VentanaDelPanel::escribirEscala(double escala) {
  escala_ = escala;
  tamano_ = tamanoDelPanel * escala;
  fijarTamano(*this, tamano_);
}

void VentanaDelPanel::vestir() {
  if (!rootObject()) return;
  rootObject()->setProperty("opaco", exigeOpaco_ || !sistema_.hayTransparencia());
  rootObject()->setProperty("densidad",
                            sistema_.hayDesenfoque() ? densidadConDesenfoque : densidadSinDesenfoque);
}

void VentanaDelPanel::desenfocar() {
  if (!rootObject()) return;
  bool const opaca = rootObject()->property("opaco").toBool();
  auto const escala = devicePixelRatio();
  auto const forma = redonda((QSizeF{size()} * escala).toSize(), Medidas::radioDelPanel * escala_ * escala);
  sistema_.desenfocar(*this, !opaca && sistema_.hayDesenfoque() ? forma : QRegion{});
}

void VentanaDelPanel::colocarEn(std::optional<Ancla> const& ancla) {
  auto& pantalla = pantallaDe(ancla ? ancla->icono.center() : QCursor::pos());
  auto const libre = sistema_.areaLibre(pantalla);
  setScreen(&pantalla);
  fijarTamano(*this, tamanoQueCabe(tamano_, libre));
  setPosition(ancla ? colocar(size(), *ancla, pantalla.geometry(), libre) : colocarSinAncla(size(), libre));
}

void VentanaDelPanel::mostrarEn(std::optional<Ancla> const& ancla, bool conTeclado) {
  preparar();
  vestir();
  ida_.stop();
  if (!isVisible()) colocarEn(ancla);
  desenfocar();
  zonaDelIcono_ = ancla ? ancla->icono : QRect{};
  if (ancla && ancla->soloPunto) {
    zonaDelIcono_.adjust(-alcanceDelIcono, -alcanceDelIcono, alcanceDelIcono, alcanceDelIcono);
  }
  if (rootObject()) rootObject()->setProperty("presente", true);
  show();
  raise();
  if (conTeclado) sistema_.tomarElTeclado(*this);
  sistema_.vigilarPulsaciones(*this, [this](QPoint donde) { alPulsarFuera(donde); });
}

void VentanaDelPanel::esconder() {
  if (!mostrada()) return;
  sistema_.devolverElTeclado(*this);
  ocultar();
}

void VentanaDelPanel::ocultar() {
  sistema_.vigilarPulsaciones(*this, {});
  irse();
  Q_EMIT escondida();
}

/// Elsewhere than on X11 the keyboard goes with the window, and so at once.
void VentanaDelPanel::irse() {
  auto* const raiz = rootObject();
  if (raiz) raiz->setProperty("presente", false);
  auto const espera = raiz && X11::conexion() ? raiz->property("desvanecimiento").toInt() : 0;
  if (espera > 0) {
    ida_.start(espera);
  } else {
    hide();
  }
}

bool VentanaDelPanel::tomarElCierre() {
  auto const cerrada = std::exchange(cerradaPorFuera_, -1);
  return cerrada >= 0 && milisegundos() - cerrada < momento;
}

void VentanaDelPanel::alPulsarFuera(QPoint donde) {
  // A menu over the panel reaches beyond it.
  bool const hayMenu = QApplication::activePopupWidget() != nullptr;
  if (zonaDelIcono_.contains(donde) || !mostrada() || hayMenu) return;
  cerradaPorFuera_ = milisegundos();
  sistema_.soltarElTeclado(*this);
  ocultar();
}

void VentanaDelPanel::alCambiarElFoco() {
  auto const* const foco = QGuiApplication::focusWindow();
  bool const esUnMenu = foco && foco->type() == Qt::Popup;
  if (!mostrada() || foco == this || esUnMenu || (!foco && sistema_.tieneElTeclado(*this))) return;
  cerradaPorFuera_ = milisegundos();
  esconder();
}

void VentanaDelPanel::mousePressEvent(QMouseEvent* evento) {
  if (!mostrada()) return;
  if (!sistema_.tieneElTeclado(*this)) sistema_.tomarElTeclado(*this);
  QQuickView::mousePressEvent(evento);
}

void VentanaDelPanel::keyPressEvent(QKeyEvent* evento) {
  // Where the window system leaves the keyboard with the panel, a menu over it gets its keys from here.
  if (auto* const menu = QApplication::activePopupWidget()) {
    QApplication::sendEvent(menu, evento);
    return;
  }
  if (llamaAlMenu(*evento)) {
    evento->accept();
    Q_EMIT menuLlamado();
    return;
  }
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
