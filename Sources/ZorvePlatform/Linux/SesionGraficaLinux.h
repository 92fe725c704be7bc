#pragma once

#include "ZorveCore/Terminales/FichaDeTerminal.h"

namespace zorve {

/// What draws this process's windows, from its environment: sway where it names its socket, KWin or GNOME's
/// compositor where KDE's or GNOME's desktop runs on Wayland, an X server where $DISPLAY names one and no
/// Wayland compositor is named. Whether GNOME's has our extension is not looked at. Call it before other
/// threads run.
[[nodiscard]] SesionGrafica sesionGraficaDelProceso();

}  // namespace zorve
