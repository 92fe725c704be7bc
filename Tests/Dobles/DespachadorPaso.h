#pragma once

#include <chrono>
#include <cstddef>
#include <deque>
#include <vector>

#include "ZorveApp/Despachador.h"

namespace zorve::dobles {

/// A dispatcher on which nothing runs by itself: a test takes one step after another, in any order, on its
/// own thread. Time stands still until it is moved. One thread only.
class DespachadorPaso final : public Despachador {
 public:
  void enPrincipal(Tarea tarea) override { principal_.push_back(std::move(tarea)); }
  void enSegundoPlano(Tarea tarea) override { fondo_.push_back(std::move(tarea)); }
  void enPrincipalTras(std::chrono::milliseconds espera, Tarea tarea) override;

  [[nodiscard]] std::size_t principales() const { return principal_.size(); }
  [[nodiscard]] std::size_t deFondo() const { return fondo_.size(); }

  /// Runs the main thread's next task. Gives false when there is none.
  bool pasoPrincipal();
  /// Runs one task of the background, the one given out `cual` places after the oldest that has not run.
  bool pasoDeFondo(std::size_t cual = 0);
  /// Moves time on; tasks that are due join the main thread's, in the order of their times.
  void avanzar(std::chrono::milliseconds cuanto);
  /// Steps until nothing is left but tasks that wait for their time.
  void correrTodo();

 private:
  struct Aplazada {
    std::chrono::milliseconds cuando;
    Tarea tarea;
  };

  std::deque<Tarea> principal_;
  std::deque<Tarea> fondo_;
  std::vector<Aplazada> aplazadas_;
  std::chrono::milliseconds ahora_{0};
};

}  // namespace zorve::dobles
