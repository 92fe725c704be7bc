#pragma once

#include <QString>

#include "ZorveApp/Idioma.h"

namespace zorve {

/// Texts that only this front end has: names for screen readers, where the system's terminal is set, and that
/// there is no tray.
namespace TextosPropios {

[[nodiscard]] QString campoDeBusqueda(Idioma idioma);
[[nodiscard]] QString limpiarLaBusqueda(Idioma idioma);
[[nodiscard]] QString listaDeSesiones(Idioma idioma);
/// `fuente` as a person knows it ("$TERMINAL").
[[nodiscard]] QString quienDiceLaTerminal(Idioma idioma, QString const& fuente);
[[nodiscard]] QString cerrar(Idioma idioma);
[[nodiscard]] QString avisoSinBandeja(Idioma idioma);
/// The same where an extension of GNOME's would be the tray.
[[nodiscard]] QString avisoSinBandejaEnGnome(Idioma idioma);

}  // namespace TextosPropios
}  // namespace zorve
