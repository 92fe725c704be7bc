#include "ZorveCore/TerminalGhostty.h"

#include <utility>

#include "ZorveCore/Escape.h"
#include "ZorveCore/GuionDeAppleScript.h"

namespace zorve {

TerminalGhostty::TerminalGhostty(std::string rutaOsascript, AplicacionesInstaladas const& aplicaciones)
    : rutaOsascript_{std::move(rutaOsascript)}, aplicaciones_{aplicaciones} {}

std::string TerminalGhostty::identificador() const { return "com.mitchellh.ghostty"; }

std::string TerminalGhostty::nombre() const { return "Ghostty"; }

std::string TerminalGhostty::nombreDelBundle() const { return "Ghostty.app"; }

bool TerminalGhostty::puedeEnfocar() const { return false; }

bool TerminalGhostty::estaInstalada() const { return aplicaciones_.hay(identificador()); }

PlanDeApertura TerminalGhostty::planParaAbrir(std::string const& cwd, std::string const& comando) const {
  return planDeGuion(rutaOsascript_,
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
