#include "ZorveCore/Terminales/TerminalApple.h"

#include <utility>

#include "ZorveCore/Texto/Escape.h"

namespace zorve {

TerminalApple::TerminalApple(std::string rutaOsascript, AplicacionesInstaladas const& aplicaciones)
    : TerminalConGuiones{
          {"com.apple.Terminal", "Terminal", "Terminal.app"}, std::move(rutaOsascript), aplicaciones} {}

bool TerminalApple::puedeEnfocar() const { return true; }

PlanDeApertura TerminalApple::planParaAbrir(std::string const& cwd, std::string const& comando) const {
  return planDe(
      "tell application \"Terminal\"\n"
      "  activate\n"
      "  do script " +
      literalDeLinea(cwd, comando) +
      "\n"
      "end tell");
}

std::expected<PlanDeApertura, IndexError> TerminalApple::planParaEnfocar(std::string const& tty) const {
  auto const corto = ttyCorto(tty);
  return planDe(
      "tell application \"Terminal\"\n"
      "  activate\n"
      "  repeat with laVentana in windows\n"
      "    repeat with laPestana in tabs of laVentana\n"
      "      set elTty to tty of laPestana\n"
      "      if " +
      esElTty(corto) +
      " then\n"
      "        set selected of laPestana to true\n"
      "        set index of laVentana to 1\n"
      "        return\n"
      "      end if\n"
      "    end repeat\n"
      "  end repeat\n"
      "end tell\n" +
      errorSinSesion(corto));
}

}  // namespace zorve
