#pragma once

#include <memory>
#include <type_traits>
#include <utility>

#include "ZorveApp/Despachador.h"

namespace zorve {

/// Runs `tarea` once in the background and hands what it gives to `alVolver` of `*quien` on the main thread,
/// unless `quien` is gone by then: `vida` ends with it. `despachador` outlives the task.
template <class Quien, class Tarea>
void enFondo(Despachador& despachador, std::shared_ptr<Quien*> const& vida, Tarea tarea,
             void (Quien::*alVolver)(std::invoke_result_t<Tarea&>)) {
  using Resultado = std::invoke_result_t<Tarea&>;
  despachador.enSegundoPlano(
      [&despachador, vida = std::weak_ptr{vida}, alVolver, tarea = std::move(tarea)]() mutable {
        auto resultado = std::make_shared<Resultado>(tarea());
        despachador.enPrincipal([vida, alVolver, resultado = std::move(resultado)] {
          if (auto const quien = vida.lock()) ((*quien)->*alVolver)(std::move(*resultado));
        });
      });
}

}  // namespace zorve
