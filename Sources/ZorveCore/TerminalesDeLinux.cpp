#include "ZorveCore/TerminalesDeLinux.h"

#include "ZorveCore/FichaDeTerminal.h"
#include "ZorveCore/TerminalDeLinux.h"

namespace zorve {

std::vector<TerminalRef> terminalesDeLinux(AplicacionesInstaladas const& aplicaciones,
                                           std::string const& rutaDelAyudante) {
  std::vector<TerminalRef> terminales;
  for (auto const& ficha : fichasDeLinux()) {
    terminales.push_back(std::make_shared<TerminalDeLinux>(ficha, aplicaciones, rutaDelAyudante));
  }
  return terminales;
}

}  // namespace zorve
