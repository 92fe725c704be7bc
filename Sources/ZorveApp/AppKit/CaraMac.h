#pragma once

#include "ZorveApp/ItemDeEstado.h"

@class Delegado;

namespace zorve {

/// Hands the status item's requests to the delegate, which it does not keep alive. Main thread only.
class CaraMac final : public CaraDelItem {
 public:
  explicit CaraMac(Delegado* _Nonnull delegado) : delegado_{delegado} {}

  [[nodiscard]] bool panelVisible() const override;
  void mostrarPanel() override;
  void cerrarPanel() override;
  void mostrarMenu(std::array<EntradaDelMenu, 3> const& entradas) override;
  void mostrarAjustes() override;
  void salir() override;

 private:
  __weak Delegado* _Nullable delegado_;
};

}  // namespace zorve
