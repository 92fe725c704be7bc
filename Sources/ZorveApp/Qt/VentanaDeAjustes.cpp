#include "ZorveApp/Qt/VentanaDeAjustes.h"

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QQmlContext>

#include "ZorveApp/Estilo.h"
#include "ZorveApp/Qt/Conversiones.h"
#include "ZorveApp/Qt/EstiloQt.h"
#include "ZorveApp/Qt/IconoDeBarra.h"
#include "ZorveApp/Qt/TamanoFijo.h"
#include "ZorveApp/Qt/TeclasQt.h"
#include "ZorveApp/Qt/X11.h"

namespace zorve {

namespace {

constexpr QSize tamano{static_cast<int>(Medidas::ajustes.ancho), static_cast<int>(Medidas::ajustes.alto)};

/// The class is the desktop entry's name, as Wayland has it by itself.
void ponerClase(QWindow& ventana) {
  auto* const conexion = X11::conexion();
  if (!conexion) return;
  ventana.create();
  X11::escribirClase(conexion, static_cast<xcb_window_t>(ventana.winId()),
                     QCoreApplication::applicationName().toLatin1(),
                     QGuiApplication::desktopFileName().toLatin1());
}

}  // namespace

VentanaDeAjustes::VentanaDeAjustes(VistaAjustes& vista, ModeloDeAjustes& modelo,
                                   PreferenciaDeIdioma const& idioma, Activacion& activacion)
    : vista_{vista}, puente_{vista, modelo, idioma}, activacion_{activacion} {
  setTitle(aQString(VistaAjustes::tituloDeLaVentana));
  setFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::WindowMinimizeButtonHint);
  setIcon(iconoDeLaAplicacion());
  setColor(aQColor(Estilo::tinteBase));
  setResizeMode(QQuickView::SizeRootObjectToView);
  vestir({});
}

VentanaDeAjustes::~VentanaDeAjustes() { setSource({}); }

void VentanaDeAjustes::vestir(GustosDePantalla const& gustos) {
  rootContext()->setContextProperty(QStringLiteral("estilo"), estiloParaQml(gustos));
  fijarTamano(*this, tamano * gustos.escala);
}

void VentanaDeAjustes::construir() {
  if (status() != QQuickView::Null) return;
  rootContext()->setContextProperty(QStringLiteral("ajustes"), &puente_);
  setSource(QUrl{QStringLiteral("qrc:/Zorve/Vistas/Ajustes.qml")});
  ponerClase(*this);
  if (auto* const pantalla = QGuiApplication::screenAt(QCursor::pos())) setScreen(pantalla);
  auto const libre = screen()->availableGeometry();
  setPosition(libre.center() - QPoint{width() / 2, height() / 2});
}

void VentanaDeAjustes::mostrar() {
  construir();
  vista_.aparecer();
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
