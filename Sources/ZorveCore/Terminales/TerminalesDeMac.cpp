#include "ZorveCore/Terminales/TerminalesDeMac.h"

#include "ZorveCore/Terminales/TerminalApple.h"
#include "ZorveCore/Terminales/TerminalGhostty.h"
#include "ZorveCore/Terminales/TerminalITerm.h"

namespace zorve {

std::vector<TerminalRef> todas(AplicacionesInstaladas const& aplicaciones) {
  constexpr char const* rutaOsascript = "/usr/bin/osascript";
  return {std::make_shared<TerminalITerm const>(rutaOsascript, aplicaciones),
          std::make_shared<TerminalGhostty const>(rutaOsascript, aplicaciones),
          std::make_shared<TerminalApple const>(rutaOsascript, aplicaciones)};
}

}  // namespace zorve
