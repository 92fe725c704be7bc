#include "ZorveCore/Terminales/TerminalITerm.h"

#include <utility>

#include "ZorveCore/Texto/Escape.h"

namespace zorve {

TerminalITerm::TerminalITerm(std::string rutaOsascript, AplicacionesInstaladas const& aplicaciones)
    : TerminalConGuiones{
          {"com.googlecode.iterm2", "iTerm2", "iTerm.app"}, std::move(rutaOsascript), aplicaciones} {}

bool TerminalITerm::puedeEnfocar() const { return true; }

PlanDeApertura TerminalITerm::planParaAbrir(std::string const& cwd, std::string const& comando) const {
  return planDe(
      "tell application \"iTerm2\"\n"
      "  activate\n"
      "  set ventanaNueva to (create window with default profile)\n"
      "  tell current session of ventanaNueva\n"
      "    write text " +
      literalDeLinea(cwd, comando) +
      "\n"
      "  end tell\n"
      "end tell");
}

std::expected<PlanDeApertura, IndexError> TerminalITerm::planParaEnfocar(std::string const& tty) const {
  auto const corto = ttyCorto(tty);
  return planDe(
      "tell application \"iTerm2\"\n"
      "  activate\n"
      "  repeat with laVentana in windows\n"
      "    repeat with laPestana in tabs of laVentana\n"
      "      repeat with laSesion in sessions of laPestana\n"
      "        set elTty to tty of laSesion\n"
      "        if " +
      esElTty(corto) +
      " then\n"
      "          select laVentana\n"
      "          select laPestana\n"
      "          select laSesion\n"
      "          return\n"
      "        end if\n"
      "      end repeat\n"
      "    end repeat\n"
      "  end repeat\n"
      "end tell\n" +
      errorSinSesion(corto));
}

}  // namespace zorve
