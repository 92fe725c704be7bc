#include "ZorveCore/TerminalITerm.h"

#include <utility>

#include "ZorveCore/Escape.h"
#include "ZorveCore/GuionDeAppleScript.h"

namespace zorve {

TerminalITerm::TerminalITerm(std::string rutaOsascript, AplicacionesInstaladas const& aplicaciones)
    : rutaOsascript_{std::move(rutaOsascript)}, aplicaciones_{aplicaciones} {}

std::string TerminalITerm::identificador() const { return "com.googlecode.iterm2"; }

std::string TerminalITerm::nombre() const { return "iTerm2"; }

std::string TerminalITerm::nombreDelBundle() const { return "iTerm.app"; }

bool TerminalITerm::puedeEnfocar() const { return true; }

bool TerminalITerm::estaInstalada() const { return aplicaciones_.hay(identificador()); }

PlanDeApertura TerminalITerm::planParaAbrir(std::string const& cwd, std::string const& comando) const {
  return planDeGuion(rutaOsascript_,
                     "tell application \"iTerm2\"\n"
                     "  activate\n"
                     "  set ventanaNueva to (create window with default profile)\n"
                     "  tell current session of ventanaNueva\n"
                     "    write text " +
                         literalDeAppleScript(lineaDeShell(cwd, comando)) +
                         "\n"
                         "  end tell\n"
                         "end tell");
}

std::expected<PlanDeApertura, IndexError> TerminalITerm::planParaEnfocar(std::string const& tty) const {
  auto const corto = ttyCorto(tty);
  return planDeGuion(rutaOsascript_,
                     "tell application \"iTerm2\"\n"
                     "  activate\n"
                     "  repeat with laVentana in windows\n"
                     "    repeat with laPestana in tabs of laVentana\n"
                     "      repeat with laSesion in sessions of laPestana\n"
                     "        set elTty to tty of laSesion\n"
                     "        if elTty is " +
                         literalDeAppleScript("/dev/" + corto) + " or elTty is " +
                         literalDeAppleScript(corto) +
                         " then\n"
                         "          select laVentana\n"
                         "          select laPestana\n"
                         "          select laSesion\n"
                         "          return\n"
                         "        end if\n"
                         "      end repeat\n"
                         "    end repeat\n"
                         "  end repeat\n"
                         "end tell\n"
                         "error " +
                         literalDeAppleScript(sesionNoHallada(nombre(), corto)));
}

}  // namespace zorve
