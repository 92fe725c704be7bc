#include "ZorveApp/Qt/Puentes/FilasQt.h"

#include "ZorveApp/Qt/Puentes/Conversiones.h"
#include "ZorveApp/Qt/Puentes/DatosDelPanel.h"
#include "ZorveApp/Qt/Puentes/Etiquetas.h"

namespace zorve {

namespace {

/// A path reads from the left whatever script its first name is written in.
constexpr QChar deIzquierdaADerecha{u'\u200e'};

DatosDelPanel::Estado estadoDe(LiveState estado) {
  switch (estado) {
    case LiveState::busy:
      return DatosDelPanel::Estado::Ocupada;
    case LiveState::idle:
      return DatosDelPanel::Estado::Quieta;
    default:
      return DatosDelPanel::Estado::Acabada;
  }
}

/// Marks of a label made of `texto` with `antes` more units before it.
QVariantList enUnidades(std::vector<Tramo> const& tramos, std::string_view texto, qsizetype antes) {
  QVariantList unidades;
  for (auto const& [desde, hasta] : tramos) {
    auto const principio = aQString(texto.substr(0, desde)).size();
    auto const largo = aQString(texto.substr(desde, hasta - desde)).size();
    unidades << antes + principio << antes + principio + largo;
  }
  return unidades;
}

QVariant valor(Fila const& fila, int papel) {
  switch (papel) {
    case FilasQt::titulo:
      return enUnaLinea(fila.titulo);
    case FilasQt::ayuda:
      return enUnaLinea(fila.ayuda.value_or(""));
    case FilasQt::ruta:
      return deIzquierdaADerecha + enUnaLinea(fila.ruta);
    case FilasQt::palabra:
      return enUnaLinea(fila.palabraDeEstado.value_or(""));
    case FilasQt::tiempo:
      return enUnaLinea(fila.tiempo);
    case FilasQt::conteo:
      return enUnaLinea(fila.conteo.value_or(""));
    case FilasQt::marcasDeTitulo:
      return enUnidades(fila.marcasDeTitulo, fila.titulo, 0);
    case FilasQt::marcasDeRuta:
      return enUnidades(fila.marcasDeRuta, fila.ruta, 1);
    case FilasQt::perdida:
      return enUnaLinea(fila.directorioPerdido.value_or(""));
    case FilasQt::estado:
      return QVariant::fromValue(estadoDe(fila.estado));
    default:
      return {};
  }
}

}  // namespace

FilasQt::FilasQt(PanelView const& panel, QObject* padre) : QAbstractListModel{padre}, panel_{panel} {}

int FilasQt::rowCount(QModelIndex const& padre) const { return padre.isValid() ? 0 : cantidad_; }

QHash<int, QByteArray> FilasQt::roleNames() const {
  return {{titulo, "titulo"},
          {ayuda, "ayuda"},
          {ruta, "ruta"},
          {palabra, "palabra"},
          {tiempo, "tiempo"},
          {conteo, "conteo"},
          {estado, "estado"},
          {marcasDeTitulo, "marcasDeTitulo"},
          {marcasDeRuta, "marcasDeRuta"},
          {perdida, "perdida"}};
}

QVariant FilasQt::data(QModelIndex const& indice, int papel) const {
  auto const posicion = static_cast<std::size_t>(indice.row());
  if (!indice.isValid() || posicion >= panel_.cantidadDeFilas()) return {};
  return valor(fila(posicion), papel);
}

Fila const& FilasQt::fila(std::size_t posicion) const {
  if (!ultima_ || ultima_->posicion != posicion) ultima_ = {posicion, panel_.fila(posicion)};
  return ultima_->fila;
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
  ultima_.reset();
  cambiarCantidad(static_cast<int>(panel_.cantidadDeFilas()));
  if (cantidad_ > 0) Q_EMIT dataChanged(index(0), index(cantidad_ - 1));
}

void FilasQt::actualizarTiempos() {
  ultima_.reset();
  if (cantidad_ > 0) Q_EMIT dataChanged(index(0), index(cantidad_ - 1), {tiempo});
}

}  // namespace zorve
