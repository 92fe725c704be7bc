#pragma once

#include <QAbstractListModel>
#include <cstddef>
#include <optional>

#include "ZorveApp/PanelView.h"

namespace zorve {

/// The panel's rows for QML. A row is a place in the list, not a session: when the list changes, places are
/// added or taken away at the end and all others say that they changed, so that no row's view is built anew.
class FilasQt final : public QAbstractListModel {
  Q_OBJECT

 public:
  /// `marcasDeTitulo` and `marcasDeRuta` are flat lists, two numbers a mark: where it begins and where it
  /// ends in `titulo` and `ruta`, in UTF-16 units. `perdida` is the help of a directory that is gone.
  enum Papel : int {
    titulo = Qt::UserRole + 1,
    ayuda,
    ruta,
    palabra,
    tiempo,
    conteo,
    estado,
    marcasDeTitulo,
    marcasDeRuta,
    perdida
  };

  /// `panel` outlives the rows.
  explicit FilasQt(PanelView const& panel, QObject* padre = nullptr);

  [[nodiscard]] int rowCount(QModelIndex const& padre = {}) const override;
  [[nodiscard]] QVariant data(QModelIndex const& indice, int papel) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  /// Takes over what the panel shows now.
  void actualizar();
  /// The times alone may have changed.
  void actualizarTiempos();

 private:
  void cambiarCantidad(int nueva);
  /// The row at `posicion`, made once for all its roles: it holds until the rows are told to change.
  [[nodiscard]] Fila const& fila(std::size_t posicion) const;

  struct Hecha {
    std::size_t posicion = 0;
    Fila fila;
  };

  PanelView const& panel_;
  int cantidad_ = 0;
  mutable std::optional<Hecha> ultima_;
};

}  // namespace zorve
