#include "Dobles/DespachadorPaso.h"

#include <algorithm>
#include <utility>

namespace zorve::dobles {

void DespachadorPaso::enPrincipalTras(std::chrono::milliseconds espera, Tarea tarea) {
  Aplazada nueva{ahora_ + espera, std::move(tarea)};
  auto const lugar = std::ranges::upper_bound(aplazadas_, nueva.cuando, {}, &Aplazada::cuando);
  aplazadas_.insert(lugar, std::move(nueva));
}

bool DespachadorPaso::pasoPrincipal() {
  if (principal_.empty()) return false;
  auto const tarea = std::move(principal_.front());
  principal_.pop_front();
  tarea();
  return true;
}

bool DespachadorPaso::pasoDeFondo(std::size_t cual) {
  if (cual >= fondo_.size()) return false;
  auto const lugar = fondo_.begin() + static_cast<std::ptrdiff_t>(cual);
  auto const tarea = std::move(*lugar);
  fondo_.erase(lugar);
  tarea();
  return true;
}

void DespachadorPaso::avanzar(std::chrono::milliseconds cuanto) {
  ahora_ += cuanto;
  while (!aplazadas_.empty() && aplazadas_.front().cuando <= ahora_) {
    principal_.push_back(std::move(aplazadas_.front().tarea));
    aplazadas_.erase(aplazadas_.begin());
  }
}

void DespachadorPaso::correrTodo() {
  while (pasoPrincipal() || pasoDeFondo()) {
  }
}

}  // namespace zorve::dobles
