#include <QtQuickTest/quicktest.h>
#include <QQmlContext>
#include <QQmlEngine>

#include "ZorveApp/Qt/EstiloQt.h"

namespace {

/// Gives the views under test their drawn types and the style.
class Preparacion final : public QObject {
  Q_OBJECT

 public Q_SLOTS:
  void qmlEngineAvailable(QQmlEngine* motor) {
    zorve::registrarDibujos();
    motor->addImportPath(QStringLiteral("qrc:/"));
    motor->rootContext()->setContextProperty(QStringLiteral("estilo"), zorve::estiloParaQml(false));
  }
};

}  // namespace

QUICK_TEST_MAIN_WITH_SETUP(Vistas, Preparacion)

#include "main.moc"
