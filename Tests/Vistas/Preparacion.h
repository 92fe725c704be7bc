#pragma once

#include <QObject>
#include <QQmlContext>
#include <QQmlEngine>

#include "ZorveApp/Qt/EstiloQt.h"

namespace zorve::vistas {

/// Gives the views under test their drawn types and the style.
class Preparacion final : public QObject {
  Q_OBJECT

 public Q_SLOTS:
  void qmlEngineAvailable(QQmlEngine* motor) {
    registrarDibujos();
    motor->addImportPath(QStringLiteral("qrc:/"));
    motor->rootContext()->setContextProperty(QStringLiteral("estilo"),
                                             estiloParaQml({.conMovimiento = false}));
  }
};

}  // namespace zorve::vistas
