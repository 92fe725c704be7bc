#pragma once

#include <QString>

#include "ZorveApp/Idioma.h"

namespace zorve {

/// Texts that only this front end has: names for screen readers, and where the system's terminal is set.
namespace TextosPropios {

[[nodiscard]] QString campoDeBusqueda(Idioma idioma);
[[nodiscard]] QString listaDeSesiones(Idioma idioma);
/// `fuente` as a person knows it ("$TERMINAL").
[[nodiscard]] QString quienDiceLaTerminal(Idioma idioma, QString const& fuente);

}  // namespace TextosPropios
}  // namespace zorve
