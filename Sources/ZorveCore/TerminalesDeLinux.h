#pragma once

#include <string>
#include <vector>

#include "ZorveCore/AplicacionesInstaladas.h"
#include "ZorveCore/FichaDeTerminal.h"
#include "ZorveCore/Terminal.h"

namespace zorve {

/// The drivers of the known Linux terminals, in the order in which they are listed. `rutaDelAyudante` is the
/// absolute path of the executable zorve-terminal; `aplicaciones` outlives the drivers. `sesion` decides
/// which of them can bring a session to the front.
[[nodiscard]] std::vector<TerminalRef> terminalesDeLinux(AplicacionesInstaladas const& aplicaciones,
                                                         std::string const& rutaDelAyudante,
                                                         SesionGrafica sesion = SesionGrafica::otra);

}  // namespace zorve
