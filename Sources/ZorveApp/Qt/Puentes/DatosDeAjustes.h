#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QVariantList>

#include "ZorveApp/Qt/Puentes/Prestamo.h"

namespace zorve {

/// What the settings show, as QML's views read it, and what they report. It knows nothing: whoever writes a
/// value tells with `cambio`. Main thread only.
class DatosDeAjustes final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(QVariantList secciones MEMBER secciones NOTIFY cambio)
  Q_PROPERTY(bool acercaDe MEMBER acercaDe NOTIFY cambio)
  Q_PROPERTY(QString banda MEMBER banda NOTIFY cambio)
  Q_PROPERTY(QVariantList grupos MEMBER grupos NOTIFY cambio)
  Q_PROPERTY(QString texto MEMBER texto NOTIFY cambio)
  Q_PROPERTY(QString pie MEMBER pie NOTIFY cambio)
  Q_PROPERTY(QString nombreYVersion MEMBER nombreYVersion NOTIFY cambio)
  Q_PROPERTY(QString paraCerrar MEMBER paraCerrar NOTIFY cambio)
  Q_PROPERTY(QString textoDeCerrar MEMBER textoDeCerrar NOTIFY cambio)

 public:
  explicit DatosDeAjustes(QObject* padre) : QObject{padre} {}
  static DatosDeAjustes* create(QQmlEngine* motor, QJSEngine* /*otro*/) {
    return prestado<DatosDeAjustes>(*motor);
  }

  /// One {titulo, simbolo, elegida} a section; `simbolo` is a `Simbolo::Forma`.
  QVariantList secciones;
  /// Whether the chosen section is the one about the program.
  bool acercaDe = false;
  QString banda;
  /// The chosen section's groups: {titulo, opciones: [{titulo, nota, marcada, cuadro}]}.
  QVariantList grupos;
  /// What stands alone where the chosen section has nothing to choose.
  QString texto;
  /// Who says which is the system's terminal, under the options; empty in other sections.
  QString pie;
  QString nombreYVersion;
  QString paraCerrar;
  /// What the button is called that closes the window.
  QString textoDeCerrar;

 Q_SIGNALS:
  void cambio();

  /// Of the views.
  void seccionPulsada(int cual);
  void opcionPulsada(int grupo, int opcion);
  void cierrePulsado();
};

}  // namespace zorve
