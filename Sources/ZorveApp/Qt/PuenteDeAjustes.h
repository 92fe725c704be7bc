#pragma once

#include <QObject>
#include <QTimer>
#include <QVariantList>
#include <vector>

#include "ZorveApp/VistaAjustes.h"

namespace zorve {

/// The settings' values as QML properties, and QML's clicks on their way back. Main thread only.
class PuenteDeAjustes final : public QObject {
  Q_OBJECT
  Q_PROPERTY(QVariantList secciones READ secciones NOTIFY cambio)
  Q_PROPERTY(QString seccion READ seccion NOTIFY cambio)
  Q_PROPERTY(QString banda READ banda NOTIFY cambio)
  Q_PROPERTY(QVariantList grupos READ grupos NOTIFY cambio)
  Q_PROPERTY(QString texto READ texto NOTIFY cambio)
  Q_PROPERTY(QString pie READ pie NOTIFY cambio)
  Q_PROPERTY(QString nombreYVersion READ nombreYVersion NOTIFY cambio)
  Q_PROPERTY(QString paraCerrar READ paraCerrar NOTIFY cambio)

 public:
  /// Everything referenced outlives this object.
  PuenteDeAjustes(VistaAjustes& vista, ModeloDeAjustes& modelo, PreferenciaDeIdioma const& idioma,
                  QObject* padre = nullptr);

  /// One {titulo, simbolo, elegida} a section.
  [[nodiscard]] QVariantList secciones() const;
  /// The raw name of the chosen section.
  [[nodiscard]] QString seccion() const;
  [[nodiscard]] QString banda() const;
  /// The chosen section's groups: {titulo, opciones: [{titulo, nota, marcada, cuadro}]}.
  [[nodiscard]] QVariantList grupos() const;
  /// What stands alone where the chosen section has nothing to choose.
  [[nodiscard]] QString texto() const;
  /// Who says which is the system's terminal, under the options; empty in other sections.
  [[nodiscard]] QString pie() const;
  [[nodiscard]] QString nombreYVersion() const;
  [[nodiscard]] QString paraCerrar() const;

  Q_INVOKABLE void clicEnSeccion(int cual);
  Q_INVOKABLE void clicEnOpcion(int grupo, int opcion);

 Q_SIGNALS:
  void cambio();

 private:
  [[nodiscard]] ContenidoDeAjustes contenido() const;
  void anotarCambio();

  VistaAjustes& vista_;
  ModeloDeAjustes& modelo_;
  PreferenciaDeIdioma const& idioma_;
  QTimer porAvisar_;
  std::vector<Suscripcion> suscripciones_;
};

}  // namespace zorve
