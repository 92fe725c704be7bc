#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>

#include "ZorveApp/Despachador.h"

namespace zorve::pruebas {

/// A dispatcher as the programs have it: each background task on a thread that nobody waits for. The thread
/// that made it is the main one and runs its tasks inside `girar`. Its end waits for the background.
class DespachadorSuelto final : public Despachador {
 public:
  using Reloj = std::chrono::steady_clock;

  DespachadorSuelto() = default;
  ~DespachadorSuelto() override { esperarAlFondo(); }

  void enPrincipal(Tarea tarea) override {
    std::scoped_lock const turno{cerrojo_};
    principal_.push_back(std::move(tarea));
    cambio_.notify_all();
  }
  void enSegundoPlano(Tarea tarea) override {
    {
      std::scoped_lock const turno{cerrojo_};
      ++deFondo_;
    }
    std::thread{[this, tarea = std::move(tarea)]() mutable {
      tarea();
      tarea = {};
      std::scoped_lock const turno{cerrojo_};
      --deFondo_;
      cambio_.notify_all();
    }}.detach();
  }
  void enPrincipalTras(std::chrono::milliseconds /*espera*/, Tarea tarea) override {
    enPrincipal(std::move(tarea));
  }

  /// Runs the main thread's tasks as they come until `limite`.
  void girar(Reloj::time_point limite) {
    for (std::unique_lock turno{cerrojo_}; Reloj::now() < limite;) {
      if (principal_.empty()) {
        cambio_.wait_until(turno, limite);
        continue;
      }
      auto tarea = std::move(principal_.front());
      principal_.pop_front();
      turno.unlock();
      tarea();
      tarea = {};
      turno.lock();
    }
  }
  /// Until no background task runs and nothing is left for the main thread.
  void acabarTodo() {
    while (true) {
      esperarAlFondo();
      {
        std::scoped_lock const turno{cerrojo_};
        if (principal_.empty()) return;
      }
      girar(Reloj::now() + std::chrono::milliseconds{10});
    }
  }

 private:
  void esperarAlFondo() {
    std::unique_lock turno{cerrojo_};
    cambio_.wait(turno, [this] { return deFondo_ == 0; });
  }

  std::mutex cerrojo_;
  std::condition_variable cambio_;
  std::deque<Tarea> principal_;
  int deFondo_ = 0;
};

}  // namespace zorve::pruebas
