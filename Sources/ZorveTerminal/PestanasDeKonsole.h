#pragma once

#include <memory>

#include "ZorveTerminal/Pestanas.h"

namespace zorve::ayudante {

/// Selects Konsole's tabs. `sesion` outlives it.
[[nodiscard]] std::unique_ptr<Pestanas> pestanasDeKonsole(SesionEnTty const& sesion);

}  // namespace zorve::ayudante
