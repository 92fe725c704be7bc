#pragma once

#include <QAbstractItemModel>
#include <QObject>
#include <QPointF>
#include <QQmlEngine>
#include <QQuickItem>
#include <QString>
#include <QVariantList>
#include <functional>

#include "ZorveApp/Qt/Puentes/Prestamo.h"

namespace zorve {

/// What the panel shows, as QML's views read it, and what they report. It knows nothing: whoever writes a
/// value tells with its signal. Main thread only.
class DatosDelPanel final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(QAbstractItemModel* filas MEMBER filas NOTIFY cambio)
  Q_PROPERTY(QString consulta MEMBER consulta NOTIFY cambio)
  Q_PROPERTY(int seleccion MEMBER seleccion NOTIFY cambio)
  Q_PROPERTY(QString marcador MEMBER marcador NOTIFY cambio)
  Q_PROPERTY(bool vacio MEMBER vacio NOTIFY cambio)
  Q_PROPERTY(QString terminal MEMBER terminal NOTIFY cambio)
  Q_PROPERTY(QVariantList banda MEMBER banda NOTIFY bandaCambio)
  Q_PROPERTY(QVariantList leyenda MEMBER leyenda NOTIFY textosCambio)
  Q_PROPERTY(QString ayudaAjustes MEMBER ayudaAjustes NOTIFY textosCambio)
  Q_PROPERTY(QString nombreAjustes MEMBER nombreAjustes NOTIFY textosCambio)
  Q_PROPERTY(QString nombreDelCampo MEMBER nombreDelCampo NOTIFY textosCambio)
  Q_PROPERTY(QString nombreDeLimpiar MEMBER nombreDeLimpiar NOTIFY textosCambio)
  Q_PROPERTY(QString nombreDeLaLista MEMBER nombreDeLaLista NOTIFY textosCambio)

 public:
  /// A row's live state.
  enum class Estado : int { Acabada, Quieta, Ocupada };
  Q_ENUM(Estado)

  explicit DatosDelPanel(QObject* padre) : QObject{padre} {}
  static DatosDelPanel* create(QQmlEngine* motor, QJSEngine* /*otro*/) {
    return prestado<DatosDelPanel>(*motor);
  }

  /// A row's roles: titulo, ayuda, ruta, palabra, tiempo, conteo, perdida, marcasDeTitulo and marcasDeRuta,
  /// and estado, an `Estado`.
  QAbstractItemModel* filas = nullptr;
  QString consulta;
  /// The selected row's place, -1 for none.
  int seleccion = -1;
  /// What stands in place of the rows; empty when there are rows.
  QString marcador;
  /// Whether there is no session at all.
  bool vacio = false;
  QString terminal;
  /// One {texto, esError} a line.
  QVariantList banda;
  /// One {simbolo, tecla, palabra} an entry; `simbolo` is a `Simbolo::Forma`.
  QVariantList leyenda;
  QString ayudaAjustes;
  QString nombreAjustes;
  /// For screen readers.
  QString nombreDelCampo;
  QString nombreDeLimpiar;
  QString nombreDeLaLista;

  /// What a row's last prompt has of the search, for help texts; empty for most rows.
  std::function<QString(int)> trozo = [](int) { return QString{}; };
  Q_INVOKABLE [[nodiscard]] QString trozoDe(int posicion) const { return trozo(posicion); }

 Q_SIGNALS:
  void cambio();
  void bandaCambio();
  void textosCambio();
  /// The panel has come up.
  void aparecio();
  /// What was searched has found nothing: it is there to be typed over.
  void otraBusqueda();
  /// The keyboard asks for the selected row's menu.
  void menuLlamado();

  /// Of the views.
  void consultaEscrita(QString const& texto);
  void filaPulsada(int posicion);
  void ajustesPedidos();
  /// The menu of a row, to come up at a place in the window.
  void menuPedido(int posicion, QPointF const& donde);
  /// A screen reader is to read `que`, which may be null; the keyboard stays where it is.
  void lecturaPedida(QQuickItem* que);
};

}  // namespace zorve
