#pragma once

#include <memory>

#include "ZorveTerminal/Pestanas.h"

namespace zorve::ayudante {

/// Selects GNOME Console's tabs. `sesion` outlives it.
[[nodiscard]] std::unique_ptr<Pestanas> pestanasDeKgx(SesionEnTty const& sesion);

}  // namespace zorve::ayudante
