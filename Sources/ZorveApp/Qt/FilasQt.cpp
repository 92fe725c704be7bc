#include "ZorveApp/Qt/FilasQt.h"

#include "ZorveApp/Qt/Conversiones.h"
#include "ZorveApp/Qt/Etiquetas.h"

namespace zorve {

namespace {

/// A path reads from the left whatever script its first name is written in.
constexpr QChar deIzquierdaADerecha{u'\u200e'};

}  // namespace

FilasQt::FilasQt(PanelView const& panel, QObject* padre) : QAbstractListModel{padre}, panel_{panel} {}

int FilasQt::rowCount(QModelIndex const& padre) const { return padre.isValid() ? 0 : cantidad_; }

QHash<int, QByteArray> FilasQt::roleNames() const {
  return {{titulo, "titulo"}, {ayuda, "ayuda"},   {ruta, "ruta"},    {palabra, "palabra"},
          {tiempo, "tiempo"}, {conteo, "conteo"}, {estado, "estado"}};
}

QVariant FilasQt::data(QModelIndex const& indice, int papel) const {
  auto const posicion = static_cast<std::size_t>(indice.row());
  if (!indice.isValid() || posicion >= panel_.cantidadDeFilas()) return {};
  auto const fila = panel_.fila(posicion);
  switch (papel) {
    case titulo:
      return enUnaLinea(fila.titulo);
    case ayuda:
      return enUnaLinea(fila.ayuda.value_or(""));
    case ruta:
      return deIzquierdaADerecha + enUnaLinea(fila.ruta);
    case palabra:
      return enUnaLinea(fila.palabraDeEstado.value_or(""));
    case tiempo:
      return enUnaLinea(fila.tiempo);
    case conteo:
      return enUnaLinea(fila.conteo.value_or(""));
    case estado:
      return aQString(textoCrudo(fila.estado));
    default:
      return {};
  }
}

void FilasQt::cambiarCantidad(int nueva) {
  if (nueva > cantidad_) {
    beginInsertRows({}, cantidad_, nueva - 1);
    cantidad_ = nueva;
    endInsertRows();
  } else if (nueva < cantidad_) {
    beginRemoveRows({}, nueva, cantidad_ - 1);
    cantidad_ = nueva;
    endRemoveRows();
  }
}

void FilasQt::actualizar() {
  cambiarCantidad(static_cast<int>(panel_.cantidadDeFilas()));
  if (cantidad_ > 0) Q_EMIT dataChanged(index(0), index(cantidad_ - 1));
}

void FilasQt::actualizarTiempos() {
  if (cantidad_ > 0) Q_EMIT dataChanged(index(0), index(cantidad_ - 1), {tiempo});
}

}  // namespace zorve
