#include "ZorvePlatform/Posix/Local.h"

#include <cstdlib>

namespace zorve {

ReglaDePlegado reglaDelEntorno() {
  for (auto const* nombre : {"LC_ALL", "LC_CTYPE", "LANG"}) {
    char const* const local = std::getenv(nombre);
    if (local != nullptr && *local != '\0') return reglaDe(local);
  }
  return ReglaDePlegado::general;
}

}  // namespace zorve
