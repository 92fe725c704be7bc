#include "ZorveApp/ListaFiltrada.h"

#include <utility>

namespace zorve {

TextosPlegados::TextosPlegados(std::span<Session const> sesiones, ReglaDePlegado regla) {
  finales_.reserve(sesiones.size());
  for (auto const& sesion : sesiones) {
    todo_ += textoDeBusqueda(sesion, regla);
    finales_.push_back(todo_.size());
  }
  todo_.shrink_to_fit();
}

std::string_view TextosPlegados::texto(std::size_t posicion) const {
  auto const desde = posicion == 0 ? 0 : finales_[posicion - 1];
  return std::string_view{todo_}.substr(desde, finales_[posicion] - desde);
}

void ListaFiltrada::cambiarTextos(TextosPlegados textos) {
  textos_ = std::move(textos);
  filtrarDeNuevo();
}

void ListaFiltrada::cambiarConsulta(std::string_view consulta) {
  fichas_ = fichasDe(consulta, regla_);
  filtrarDeNuevo();
}

void ListaFiltrada::filtrarDeNuevo() {
  visibles_.clear();
  for (std::size_t i = 0; i < textos_.cantidad(); ++i) {
    if (coincide(textos_.texto(i), fichas_)) visibles_.push_back(i);
  }
}

}  // namespace zorve
