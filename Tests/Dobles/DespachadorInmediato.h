#pragma once

#include <utility>

#include "Dobles/DespachadorPaso.h"

namespace zorve::dobles {

/// A dispatcher whose background work has ended when the call that hands it over returns, and with it every
/// main-thread task that is not delayed. Main-thread tasks handed over otherwise wait for `girar`. One thread
/// only.
class DespachadorInmediato final : public Despachador {
 public:
  void enPrincipal(Tarea tarea) override { pasos_.enPrincipal(std::move(tarea)); }
  void enPrincipalTras(std::chrono::milliseconds espera, Tarea tarea) override {
    pasos_.enPrincipalTras(espera, std::move(tarea));
  }
  void enSegundoPlano(Tarea tarea) override {
    tarea();
    pasos_.correrTodo();
  }

  /// Runs what waits, the delayed tasks too.
  void girar() {
    pasos_.avanzar(std::chrono::hours{1});
    pasos_.correrTodo();
  }

 private:
  DespachadorPaso pasos_;
};

}  // namespace zorve::dobles
