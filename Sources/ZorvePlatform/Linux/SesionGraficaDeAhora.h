#pragma once

#include <atomic>
#include <string>

#include "ZorveCore/Terminales/FichaDeTerminal.h"

namespace zorve {

/// What draws this process's windows, as it is now: GNOME's compositor tells of them only while our extension
/// is on, which can change at any time. The helper is asked there, and nowhere else. Any thread.
class SesionGraficaDeAhora {
 public:
  /// `delProceso` is what the environment says; `rutaDelAyudante` the absolute path of zorve-terminal.
  SesionGraficaDeAhora(SesionGrafica delProceso, std::string rutaDelAyudante);

  /// Looks, for one second at most.
  void mirar();
  /// What the last look saw. Looks first where nobody has yet.
  [[nodiscard]] SesionGrafica actual();

 private:
  SesionGrafica delProceso_;
  std::string rutaDelAyudante_;
  std::atomic<bool> mirada_ = false;
  std::atomic<SesionGrafica> vista_;
};

}  // namespace zorve
