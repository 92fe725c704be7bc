#pragma once

#include <memory>

#include "ZorveTerminal/Pestanas.h"

namespace zorve::ayudante {

/// Selects kitty's tabs. `sesion` outlives it.
[[nodiscard]] std::unique_ptr<Pestanas> pestanasDeKitty(SesionEnTty const& sesion);

}  // namespace zorve::ayudante
