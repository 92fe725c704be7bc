#pragma once

#include <memory>
#include <type_traits>
#include <utility>

#include "ZorveApp/Despachador.h"

namespace zorve {

/// Hands `valor` to `metodo` of the object that `vida` belongs to, on the main thread, unless that object is
/// gone by then. `despachador` outlives it. Any thread.
template <class Quien, class Valor>
void alPrincipal(Despachador& despachador, std::weak_ptr<Quien*> vida, void (Quien::*metodo)(Valor),
                 std::type_identity_t<Valor> valor) {
  auto llevado = std::make_shared<Valor>(std::move(valor));
  despachador.enPrincipal([vida = std::move(vida), metodo, llevado = std::move(llevado)] {
    if (auto const quien = vida.lock()) ((*quien)->*metodo)(std::move(*llevado));
  });
}

/// Runs `tarea` once in the background and hands what it gives to `alVolver` of `*quien` on the main thread,
/// unless `quien` is gone by then: `vida` ends with it. `despachador` outlives the task.
template <class Quien, class Tarea>
void enFondo(Despachador& despachador, std::shared_ptr<Quien*> const& vida, Tarea tarea,
             void (Quien::*alVolver)(std::invoke_result_t<Tarea&>)) {
  despachador.enSegundoPlano(
      [&despachador, vida = std::weak_ptr{vida}, alVolver, tarea = std::move(tarea)]() mutable {
        alPrincipal(despachador, std::move(vida), alVolver, tarea());
      });
}

}  // namespace zorve
