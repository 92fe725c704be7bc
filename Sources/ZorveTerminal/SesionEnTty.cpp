#include "ZorveTerminal/SesionEnTty.h"

#include <algorithm>

namespace zorve {

bool SesionEnTty::desciendeDe(pid_t pid) const {
  return pid > 0 && std::ranges::find(ascendencia, pid) != ascendencia.end();
}

std::optional<SesionEnTty> sesionEnTty(std::string const& tty) {
  auto const lider = liderDelTty(tty);
  if (!lider) return std::nullopt;
  return SesionEnTty{tty, *lider, ascendencia(*lider)};
}

}  // namespace zorve
