#pragma once

#include <chrono>
#include <deque>
#include <mutex>
#include <optional>
#include <vector>

#include "ZorveApp/Despachador.h"
#include "ZorvePlatform/Posix/Descriptor.h"

namespace zorve::tui {

/// Background tasks on threads of their own, which the program's end does not wait for; main-thread tasks
/// where a loop calls `correrPendientes`. It outlives every task: a program keeps one to its end.
class DespachadorDeConsola final : public Despachador {
 public:
  DespachadorDeConsola();
  void enPrincipal(Tarea tarea) override;
  void enSegundoPlano(Tarea tarea) override;
  void enPrincipalTras(std::chrono::milliseconds espera, Tarea tarea) override;

  /// Readable when a main-thread task waits.
  [[nodiscard]] int descriptor() const { return lectura_.numero(); }
  /// How long until the next delayed task; nothing when there is none. Main thread only.
  [[nodiscard]] std::optional<std::chrono::milliseconds> hastaLaProxima();
  /// Runs what waits and whose time has come. Main thread only.
  void correrPendientes();

 private:
  using Reloj = std::chrono::steady_clock;
  struct Aplazada {
    Reloj::time_point cuando;
    Tarea tarea;
  };
  [[nodiscard]] Tarea siguiente();
  void despertar() const;

  Descriptor lectura_;
  Descriptor escritura_;
  std::mutex cerrojo_;
  std::deque<Tarea> principal_;
  std::vector<Aplazada> aplazadas_;
};

}  // namespace zorve::tui
