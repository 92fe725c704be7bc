#pragma once

#include <memory>

#include "ZorveTerminal/Pestanas.h"

namespace zorve::ayudante {

/// Selects Tilix's tabs. `sesion` outlives it.
[[nodiscard]] std::unique_ptr<Pestanas> pestanasDeTilix(SesionEnTty const& sesion);

}  // namespace zorve::ayudante
