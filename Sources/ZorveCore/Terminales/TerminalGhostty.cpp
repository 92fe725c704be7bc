#include "ZorveCore/Terminales/TerminalGhostty.h"

#include <utility>

#include "ZorveCore/Texto/Escape.h"

namespace zorve {

TerminalGhostty::TerminalGhostty(std::string rutaOsascript, AplicacionesInstaladas const& aplicaciones)
    : TerminalConGuiones{
          {"com.mitchellh.ghostty", "Ghostty", "Ghostty.app"}, std::move(rutaOsascript), aplicaciones} {}

bool TerminalGhostty::puedeEnfocar() const { return false; }

PlanDeApertura TerminalGhostty::planParaAbrir(std::string const& cwd, std::string const& comando) const {
  return planDe(
      "tell application \"Ghostty\"\n"
      "  activate\n"
      "  set configuracion to new surface configuration\n"
      "  set initial working directory of configuracion to " +
      literalDeAppleScript(cwd) +
      "\n"
      "  set initial input of configuracion to " +
      literalDeAppleScript(comando) +
      " & return\n"
      "  new window with configuration configuracion\n"
      "end tell");
}

std::expected<PlanDeApertura, IndexError> TerminalGhostty::planParaEnfocar(std::string const& tty) const {
  return NoSePuedeEnfocar{ttyCorto(tty)};
}

}  // namespace zorve
