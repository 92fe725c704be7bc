#include <cstdlib>

#include "ZorvePlatform/ServiciosDeTerminal.h"

namespace zorve {

/// Stands in where there are no frameworks to link with: what is linked with it never runs.
ServiciosDeTerminal serviciosDeTerminal(std::string const& /*home*/) { std::abort(); }

VocesDelSistema vocesDeAqui() { return {}; }

}  // namespace zorve
