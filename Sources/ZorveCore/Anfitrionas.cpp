#include "ZorveCore/Anfitrionas.h"

namespace zorve {

std::vector<TerminalRef> soloLasConocidas(std::vector<TerminalRef> const& conocidas,
                                          TerminalRef const& /*elegida*/) {
  return conocidas;
}

}  // namespace zorve
