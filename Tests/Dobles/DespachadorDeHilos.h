#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

#include "ZorveApp/Despachador.h"

namespace zorve::dobles {

/// A dispatcher with real threads: each background task on one of its own. The thread that made it is the
/// main one and runs its tasks inside `girarHasta`. Its end waits for the background.
class DespachadorDeHilos final : public Despachador {
 public:
  DespachadorDeHilos() = default;
  ~DespachadorDeHilos() override;

  void enPrincipal(Tarea tarea) override;
  void enSegundoPlano(Tarea tarea) override;
  void enPrincipalTras(std::chrono::milliseconds espera, Tarea tarea) override;

  /// Runs main-thread tasks as they come until `listo` holds after one of them or at the start. Gives false
  /// after ten seconds.
  bool girarHasta(std::function<bool()> const& listo);

 private:
  using Reloj = std::chrono::steady_clock;
  struct Aplazada {
    Reloj::time_point cuando;
    Tarea tarea;
  };

  [[nodiscard]] Tarea esperarTarea(Reloj::time_point limite);
  void juntarLasQueTocan();

  std::mutex cerrojo_;
  std::condition_variable hayAlgo_;
  std::deque<Tarea> principal_;
  std::vector<Aplazada> aplazadas_;
  std::vector<std::thread> hilos_;
};

}  // namespace zorve::dobles
