#pragma once

#include <functional>
#include <string>

#include "ZorveCore/Terminales/Anfitrionas.h"
#include "ZorveCore/Terminales/Launcher.h"
#include "ZorveCore/Terminales/MiradaDeTerminales.h"

namespace zorve {

/// What opening sessions takes from this system.
struct ServiciosDeApertura {
  FuentesDeTerminales fuentes;
  /// The process-status tool.
  std::string rutaPs = "/bin/ps";
  /// Which hosts a running session may have.
  Anfitrionas anfitrionas = soloLasConocidas;
  /// Whether windows do not come to the front for want of a switch of the desktop's own. Any thread.
  std::function<bool()> faltaUnInterruptor = [] { return false; };

  /// Plans for `terminal`; `ejecutor` outlives the launcher.
  [[nodiscard]] Launcher lanzador(TerminalRef const& terminal, Ejecutor const& ejecutor) const {
    return {terminal, ejecutor, rutaPs, anfitrionas(fuentes.conocidas, terminal)};
  }
};

}  // namespace zorve
