#include "ZorveApp/Qt/Ventanas/VentanaDeAjustes.h"

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>

#include "ZorveApp/Estilo.h"
#include "ZorveApp/Qt/Bandeja/IconoDeBarra.h"
#include "ZorveApp/Qt/Puentes/Conversiones.h"
#include "ZorveApp/Qt/Puentes/Prestamo.h"
#include "ZorveApp/Qt/Puentes/TeclasQt.h"
#include "ZorveApp/Qt/Ventanas/ExtensionDeGnome.h"
#include "ZorveApp/Qt/Ventanas/TamanoFijo.h"
#include "ZorveApp/Qt/Ventanas/X11.h"

namespace zorve {

namespace {

constexpr QSize tamano{static_cast<int>(Medidas::ajustes.ancho), static_cast<int>(Medidas::ajustes.alto)};

/// What AjustesConMarco.qml has around the settings, by Medidas.qml.
constexpr int sombra = 18;
constexpr int barraDeTitulo = 38;

/// The class is the desktop entry's name, as Wayland has it by itself. Who closes a window takes its native
/// one away: it is written before each showing.
void ponerClase(QWindow& ventana) {
  auto* const conexion = X11::conexion();
  if (!conexion) return;
  ventana.create();
  X11::escribirClase(conexion, static_cast<xcb_window_t>(ventana.winId()),
                     QCoreApplication::applicationName().toLatin1(),
                     QGuiApplication::desktopFileName().toLatin1());
}

}  // namespace

VentanaDeAjustes::VentanaDeAjustes(VistaAjustes& vista, PreferenciaDeIdioma const& idioma,
                                   Activacion& activacion)
    : vista_{vista}, puente_{vista, idioma}, activacion_{activacion}, conMarco_{sobreGnome()} {
  setTitle(aQString(VistaAjustes::tituloDeLaVentana));
  setFlags(conMarco_
               ? Qt::Dialog | Qt::FramelessWindowHint
               : Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::WindowMinimizeButtonHint);
  setIcon(iconoDeLaAplicacion());
  setColor(conMarco_ ? QColor{Qt::transparent} : aQColor(Estilo::tinteBase));
  setResizeMode(QQuickView::SizeRootObjectToView);
  vestir({});
}

VentanaDeAjustes::~VentanaDeAjustes() { setSource({}); }

void VentanaDeAjustes::vestir(GustosDePantalla const& gustos) {
  estilo_.vestir(gustos);
  if (!conMarco_) return fijarTamano(*this, tamano * gustos.escala);
  auto const margen = qRound(sombra * gustos.escala);
  auto const conTitulo = (tamano + QSize{0, barraDeTitulo}) * gustos.escala;
  fijarTamano(*this, conTitulo + 2 * QSize{margen, margen});
  setMask(QRegion{QRect{QPoint{margen, margen}, conTitulo}});
}

void VentanaDeAjustes::construir() {
  if (status() != QQuickView::Null) return;
  prestar(*engine(), puente_.datos());
  prestar(*engine(), estilo_);
  setSource(QUrl{conMarco_ ? QStringLiteral("qrc:/Zorve/Vistas/AjustesConMarco.qml")
                           : QStringLiteral("qrc:/Zorve/Vistas/Ajustes.qml")});
  if (auto* const pantalla = QGuiApplication::screenAt(QCursor::pos())) setScreen(pantalla);
  auto const libre = screen()->availableGeometry();
  setPosition(libre.center() - QPoint{width() / 2, height() / 2});
}

void VentanaDeAjustes::mostrar() {
  construir();
  vista_.aparecer();
  ponerClase(*this);
  show();
  activacion_.alFrente(*this);
}

void VentanaDeAjustes::keyPressEvent(QKeyEvent* evento) {
  if (vista_.tecla(aPulsacion(*evento))) {
    evento->accept();
    return;
  }
  QQuickView::keyPressEvent(evento);
}

}  // namespace zorve
