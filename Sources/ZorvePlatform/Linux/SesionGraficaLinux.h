#pragma once

#include "ZorveCore/FichaDeTerminal.h"

namespace zorve {

/// What draws this process's windows, from its environment: sway where it names its socket, KWin where KDE's
/// desktop runs on Wayland, an X server where $DISPLAY names one and no Wayland compositor is named. Call it
/// before other threads run.
[[nodiscard]] SesionGrafica sesionGraficaDelProceso();

}  // namespace zorve
