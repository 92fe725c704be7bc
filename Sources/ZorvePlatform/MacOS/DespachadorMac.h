#pragma once

#include "ZorveApp/Despachador.h"

namespace zorve {

/// The system's main queue and its user-initiated one. Tasks do not throw.
class DespachadorMac final : public Despachador {
 public:
  void enPrincipal(Tarea tarea) override;
  void enSegundoPlano(Tarea tarea) override;
  void enPrincipalTras(std::chrono::milliseconds espera, Tarea tarea) override;
};

}  // namespace zorve
