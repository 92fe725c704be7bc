#include "ZorveTui/TerminalDeAqui.h"

#include "ZorveCore/Texto/Escape.h"

namespace zorve::tui {

std::expected<PlanDeApertura, IndexError> TerminalDeAqui::planParaEnfocar(std::string const& tty) const {
  return NoSePuedeEnfocar{ttyCorto(tty)};
}

PlanDeApertura TerminalDeAqui::planParaAbrir(std::string const& /*cwd*/,
                                             std::string const& /*comando*/) const {
  return NoSePuedeEnfocar{};
}

}  // namespace zorve::tui
