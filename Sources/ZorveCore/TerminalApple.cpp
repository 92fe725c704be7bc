#include "ZorveCore/TerminalApple.h"

#include <utility>

#include "ZorveCore/Escape.h"
#include "ZorveCore/GuionDeAppleScript.h"

namespace zorve {

TerminalApple::TerminalApple(std::string rutaOsascript, AplicacionesInstaladas const& aplicaciones)
    : rutaOsascript_{std::move(rutaOsascript)}, aplicaciones_{aplicaciones} {}

std::string TerminalApple::identificador() const { return "com.apple.Terminal"; }

std::string TerminalApple::nombre() const { return "Terminal"; }

std::string TerminalApple::nombreDelBundle() const { return "Terminal.app"; }

bool TerminalApple::puedeEnfocar() const { return true; }

bool TerminalApple::estaInstalada() const { return aplicaciones_.hay(identificador()); }

PlanDeApertura TerminalApple::planParaAbrir(std::string const& cwd, std::string const& comando) const {
  return planDeGuion(rutaOsascript_,
                     "tell application \"Terminal\"\n"
                     "  activate\n"
                     "  do script " +
                         literalDeAppleScript(lineaDeShell(cwd, comando)) +
                         "\n"
                         "end tell");
}

std::expected<PlanDeApertura, IndexError> TerminalApple::planParaEnfocar(std::string const& tty) const {
  auto const corto = ttyCorto(tty);
  return planDeGuion(rutaOsascript_,
                     "tell application \"Terminal\"\n"
                     "  activate\n"
                     "  repeat with laVentana in windows\n"
                     "    repeat with laPestana in tabs of laVentana\n"
                     "      set elTty to tty of laPestana\n"
                     "      if elTty is " +
                         literalDeAppleScript("/dev/" + corto) + " or elTty is " +
                         literalDeAppleScript(corto) +
                         " then\n"
                         "        set selected of laPestana to true\n"
                         "        set index of laVentana to 1\n"
                         "        return\n"
                         "      end if\n"
                         "    end repeat\n"
                         "  end repeat\n"
                         "end tell\n"
                         "error " +
                         literalDeAppleScript(sesionNoHallada(nombre(), corto)));
}

}  // namespace zorve
