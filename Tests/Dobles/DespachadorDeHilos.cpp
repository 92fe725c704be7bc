#include "Dobles/DespachadorDeHilos.h"

#include <algorithm>
#include <utility>

namespace zorve::dobles {

DespachadorDeHilos::~DespachadorDeHilos() {
  for (;;) {
    std::vector<std::thread> quedan;
    {
      std::scoped_lock const turno{cerrojo_};
      quedan.swap(hilos_);
    }
    if (quedan.empty()) return;
    for (auto& hilo : quedan) hilo.join();
  }
}

void DespachadorDeHilos::enPrincipal(Tarea tarea) {
  std::scoped_lock const turno{cerrojo_};
  principal_.push_back(std::move(tarea));
  hayAlgo_.notify_all();
}

void DespachadorDeHilos::enSegundoPlano(Tarea tarea) {
  std::scoped_lock const turno{cerrojo_};
  hilos_.emplace_back(std::move(tarea));
}

void DespachadorDeHilos::enPrincipalTras(std::chrono::milliseconds espera, Tarea tarea) {
  std::scoped_lock const turno{cerrojo_};
  Aplazada nueva{Reloj::now() + espera, std::move(tarea)};
  auto const lugar = std::ranges::upper_bound(aplazadas_, nueva.cuando, {}, &Aplazada::cuando);
  aplazadas_.insert(lugar, std::move(nueva));
  hayAlgo_.notify_all();
}

void DespachadorDeHilos::juntarLasQueTocan() {
  while (!aplazadas_.empty() && aplazadas_.front().cuando <= Reloj::now()) {
    principal_.push_back(std::move(aplazadas_.front().tarea));
    aplazadas_.erase(aplazadas_.begin());
  }
}

Despachador::Tarea DespachadorDeHilos::esperarTarea(Reloj::time_point limite) {
  std::unique_lock turno{cerrojo_};
  for (juntarLasQueTocan(); principal_.empty(); juntarLasQueTocan()) {
    if (Reloj::now() >= limite) return {};
    auto const hasta = aplazadas_.empty() ? limite : std::min(limite, aplazadas_.front().cuando);
    hayAlgo_.wait_until(turno, hasta);
  }
  auto tarea = std::move(principal_.front());
  principal_.pop_front();
  return tarea;
}

bool DespachadorDeHilos::girarHasta(std::function<bool()> const& listo) {
  auto const limite = Reloj::now() + std::chrono::seconds{10};
  while (!listo()) {
    auto const tarea = esperarTarea(limite);
    if (!tarea) return false;
    tarea();
  }
  return true;
}

}  // namespace zorve::dobles
