#pragma once

#include <QObject>
#include <QQmlContext>
#include <QQmlEngine>
#include <QVariantList>

#include "ZorveApp/Qt/Dibujo/EstiloQt.h"
#include "ZorveApp/Qt/Dibujo/Simbolo.h"
#include "ZorveApp/Qt/Puentes/DatosDeAjustes.h"
#include "ZorveApp/Qt/Puentes/DatosDelPanel.h"
#include "ZorveApp/Qt/Puentes/TiposDeQml.h"
#include "ZorveApp/Textos.h"
#include "ZorveCore/Terminales/FichaDeTerminal.h"

namespace zorve::vistas {

/// Every footer there can be: {leyenda, terminal} for each terminal, with and without what stands after its
/// name, in both languages.
inline QVariantList pies() {
  QVariantList todos;
  for (auto const idioma : {Idioma::es, Idioma::en}) {
    Textos const t{idioma};
    auto const entrada = [](Simbolo::Forma simbolo, std::string_view tecla, std::string_view palabra) {
      return QVariantMap{{QStringLiteral("simbolo"), QVariant::fromValue(simbolo)},
                         {QStringLiteral("tecla"), aQString(tecla)},
                         {QStringLiteral("palabra"), aQString(palabra)}};
    };
    QVariantList const leyenda{entrada(Simbolo::Forma::Flechas, "", t.atajoMover),
                               entrada(Simbolo::Forma::Retorno, "", t.atajoAbrir),
                               entrada(Simbolo::Forma::Ninguna, "Ctrl+R", t.atajoRefrescar)};
    for (auto const& ficha : fichasDeLinux()) {
      for (auto const& texto : {ficha.nombre, t.pieDelSistema(ficha.nombre), t.pieLaUnica(ficha.nombre)}) {
        todos << QVariantMap{{QStringLiteral("leyenda"), leyenda},
                             {QStringLiteral("terminal"), aQString(texto)}};
      }
    }
  }
  return todos;
}

/// Gives the views under test their types, the style, and values of their own for each file of tests.
class Preparacion final : public QObject {
  Q_OBJECT

 public Q_SLOTS:
  void applicationAvailable() {
    registrarTipos();
    estilo_ = new EstiloQt{this};
    estilo_->vestir({.conMovimiento = false});
  }
  void qmlEngineAvailable(QQmlEngine* motor) {
    motor->addImportPath(QStringLiteral("qrc:/"));
    prestar(*motor, *estilo_);
    prestar(*motor, *new DatosDelPanel{this});
    prestar(*motor, *new DatosDeAjustes{this});
    motor->rootContext()->setContextProperty(QStringLiteral("Pies"),
                                             QVariantMap{{QStringLiteral("todos"), pies()}});
  }

 private:
  EstiloQt* estilo_ = nullptr;
};

}  // namespace zorve::vistas
