#include "ZorveCore/Terminales/Anfitrionas.h"

namespace zorve {

std::vector<AnfitrionaRef> soloLasConocidas(std::vector<TerminalRef> const& conocidas,
                                            TerminalRef const& /*elegida*/) {
  return {conocidas.begin(), conocidas.end()};
}

}  // namespace zorve
