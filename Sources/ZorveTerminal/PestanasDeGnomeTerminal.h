#pragma once

#include <memory>

#include "ZorveTerminal/Pestanas.h"

namespace zorve::ayudante {

/// Selects GNOME Terminal's tabs. `sesion` outlives it.
[[nodiscard]] std::unique_ptr<Pestanas> pestanasDeGnomeTerminal(SesionEnTty const& sesion);

}  // namespace zorve::ayudante
