#pragma once

#include <functional>

namespace zorve {

/// What the panel shares with the delegate. Main thread only.
struct EstadoDelPanel {
  /// Does nothing until the delegate installs the real action.
  std::function<void()> abrirLaVentanaDeAjustes = [] {};
};

}  // namespace zorve
