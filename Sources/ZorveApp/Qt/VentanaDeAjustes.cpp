#include "ZorveApp/Qt/VentanaDeAjustes.h"

#include <QKeyEvent>
#include <QQmlContext>

#include "ZorveApp/Estilo.h"
#include "ZorveApp/Qt/Conversiones.h"
#include "ZorveApp/Qt/EstiloQt.h"
#include "ZorveApp/Qt/IconoDeBarra.h"
#include "ZorveApp/Qt/TeclasQt.h"

namespace zorve {

namespace {

constexpr QSize tamano{static_cast<int>(Medidas::ajustes.ancho), static_cast<int>(Medidas::ajustes.alto)};

}  // namespace

VentanaDeAjustes::VentanaDeAjustes(VistaAjustes& vista, ModeloDeAjustes& modelo,
                                   PreferenciaDeIdioma const& idioma)
    : vista_{vista}, puente_{vista, modelo, idioma} {
  setTitle(aQString(VistaAjustes::tituloDeLaVentana));
  setFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::WindowMinimizeButtonHint);
  setIcon(iconoDeLaAplicacion());
  setColor(aQColor(Estilo::tinteBase));
  setMinimumSize(tamano);
  setMaximumSize(tamano);
  resize(tamano);
}

VentanaDeAjustes::~VentanaDeAjustes() { setSource({}); }

void VentanaDeAjustes::construir() {
  if (status() != QQuickView::Null) return;
  rootContext()->setContextProperty(QStringLiteral("ajustes"), &puente_);
  rootContext()->setContextProperty(QStringLiteral("estilo"), estiloParaQml(true));
  setSource(QUrl{QStringLiteral("qrc:/Zorve/Vistas/Ajustes.qml")});
  auto const libre = screen()->availableGeometry();
  setPosition(libre.center() - QPoint{tamano.width() / 2, tamano.height() / 2});
}

void VentanaDeAjustes::mostrar() {
  construir();
  vista_.aparecer();
  show();
  raise();
  requestActivate();
}

void VentanaDeAjustes::keyPressEvent(QKeyEvent* evento) {
  if (vista_.tecla(aPulsacion(*evento))) {
    evento->accept();
    return;
  }
  QQuickView::keyPressEvent(evento);
}

}  // namespace zorve
