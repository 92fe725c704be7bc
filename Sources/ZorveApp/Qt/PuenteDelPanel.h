#pragma once

#include <QAbstractListModel>
#include <QObject>
#include <QQuickItem>
#include <QString>
#include <QTimer>
#include <QVariantList>
#include <vector>

#include "ZorveApp/PanelView.h"
#include "ZorveApp/Qt/FilasQt.h"
#include "ZorveApp/Qt/TextosPropios.h"

namespace zorve {

/// The panel's values as QML properties, and QML's clicks on their way back. Changes of the model are
/// gathered and told once, when the event loop comes round. Main thread only.
class PuenteDelPanel final : public QObject {
  Q_OBJECT
  Q_PROPERTY(QAbstractListModel* filas READ filas CONSTANT)
  Q_PROPERTY(QString consulta READ consulta NOTIFY cambio)
  Q_PROPERTY(int seleccion READ seleccion NOTIFY cambio)
  Q_PROPERTY(QString marcador READ marcador NOTIFY cambio)
  Q_PROPERTY(QString terminal READ terminal NOTIFY cambio)
  Q_PROPERTY(QVariantList banda READ banda NOTIFY bandaCambio)
  Q_PROPERTY(QVariantList leyenda READ leyenda NOTIFY textosCambio)
  Q_PROPERTY(QString ayudaAjustes READ ayudaAjustes NOTIFY textosCambio)
  Q_PROPERTY(QString nombreAjustes READ nombreAjustes NOTIFY textosCambio)
  Q_PROPERTY(QString nombreDelCampo READ nombreDelCampo NOTIFY textosCambio)
  Q_PROPERTY(QString nombreDeLaLista READ nombreDeLaLista NOTIFY textosCambio)

 public:
  /// Everything referenced outlives this object.
  PuenteDelPanel(ModeloDeVista& modelo, PanelView& panel, PreferenciaDeIdioma const& idioma,
                 QObject* padre = nullptr);

  [[nodiscard]] QAbstractListModel* filas() { return &filas_; }
  [[nodiscard]] QString consulta() const;
  /// The selected row's place, -1 for none.
  [[nodiscard]] int seleccion() const;
  /// What stands in place of the rows; empty when there are rows.
  [[nodiscard]] QString marcador() const;
  [[nodiscard]] QString terminal() const;
  /// One {texto, esError} a line.
  [[nodiscard]] QVariantList banda() const { return banda_; }
  /// One {simbolo, tecla, palabra} an entry; `simbolo` is "flechas", "retorno" or empty.
  [[nodiscard]] QVariantList leyenda() const;
  [[nodiscard]] QString ayudaAjustes() const;
  [[nodiscard]] QString nombreAjustes() const;
  /// For screen readers.
  [[nodiscard]] QString nombreDelCampo() const { return TextosPropios::campoDeBusqueda(*idioma_.idioma()); }
  [[nodiscard]] QString nombreDeLaLista() const { return TextosPropios::listaDeSesiones(*idioma_.idioma()); }

  Q_INVOKABLE void escribirConsulta(QString const& texto);
  Q_INVOKABLE void clicEnFila(int posicion);
  Q_INVOKABLE void clicEnAjustes();
  /// Has a screen reader, if there is one, read `que`, which may be null; the keyboard stays where it is.
  Q_INVOKABLE void leer(QQuickItem* que) const;

  /// A line of this desktop's own at the end of the band; an empty text takes it away.
  void escribirAvisoPropio(QString texto);
  /// Tells at once whatever has changed.
  void actualizar();
  void actualizarTiempos() { filas_.actualizarTiempos(); }

 Q_SIGNALS:
  void cambio();
  void bandaCambio();
  void textosCambio();

 private:
  void anotarCambio();
  [[nodiscard]] QVariantList nuevaBanda() const;

  ModeloDeVista& modelo_;
  PanelView& panel_;
  PreferenciaDeIdioma const& idioma_;
  FilasQt filas_;
  QVariantList banda_;
  QString avisoPropio_;
  QTimer porAvisar_;
  std::vector<Suscripcion> suscripciones_;
};

}  // namespace zorve
