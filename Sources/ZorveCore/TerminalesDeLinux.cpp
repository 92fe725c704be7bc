#include "ZorveCore/TerminalesDeLinux.h"

#include "ZorveCore/TerminalDeLinux.h"

namespace zorve {

std::vector<TerminalRef> terminalesDeLinux(AplicacionesInstaladas const& aplicaciones,
                                           std::string const& rutaDelAyudante, SesionGrafica sesion) {
  std::vector<TerminalRef> terminales;
  for (auto const& ficha : fichasDeLinux()) {
    terminales.push_back(std::make_shared<TerminalDeLinux>(ficha, aplicaciones, rutaDelAyudante, sesion));
  }
  return terminales;
}

}  // namespace zorve
