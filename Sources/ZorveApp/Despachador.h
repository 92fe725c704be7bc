#pragma once

#include <chrono>
#include <functional>

namespace zorve {

/// Where work runs. Tasks handed to the main thread run there in the order given; none runs before the call
/// that hands it over returns. Every operation may be called from any thread.
class Despachador {
 public:
  using Tarea = std::function<void()>;

  Despachador() = default;
  Despachador(Despachador const&) = delete;
  Despachador& operator=(Despachador const&) = delete;
  virtual ~Despachador() = default;

  virtual void enPrincipal(Tarea tarea) = 0;
  /// On a thread of its own or a pool's, at user-initiated priority. The program's end does not wait for it.
  virtual void enSegundoPlano(Tarea tarea) = 0;
  virtual void enPrincipalTras(std::chrono::milliseconds espera, Tarea tarea) = 0;
};

}  // namespace zorve
