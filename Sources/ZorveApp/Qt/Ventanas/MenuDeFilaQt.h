#pragma once

#include <QMenu>
#include <QPoint>
#include <QWindow>
#include <functional>
#include <memory>
#include <vector>

#include "ZorveApp/MenuDeFila.h"

namespace zorve {

/// A row's menu over the panel's window, in the panel's colours. Main thread only.
class MenuDeFilaQt {
 public:
  using Elegir = std::function<void(EntradaDelMenuDeFila::Clase)>;

  /// Shows the entries with the first one at `donde`, a place of the screen over `ventana`; `alElegir` is
  /// called at most once. A menu that is open closes. `escala`: how much larger than usual it is.
  void abrir(std::vector<EntradaDelMenuDeFila> const& entradas, QWindow& ventana, QPoint donde, double escala,
             Elegir alElegir);
  void cerrar();

 private:
  std::unique_ptr<QMenu> menu_;
};

}  // namespace zorve
