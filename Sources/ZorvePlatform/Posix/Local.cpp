#include "ZorvePlatform/Posix/Local.h"

#include "ZorvePlatform/Posix/Variable.h"

namespace zorve {

ReglaDePlegado reglaDelEntorno() {
  for (auto const* nombre : {"LC_ALL", "LC_CTYPE", "LANG"}) {
    if (auto const local = variable(nombre); !local.empty()) return reglaDe(local);
  }
  return ReglaDePlegado::general;
}

}  // namespace zorve
