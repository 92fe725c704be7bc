#include "ZorveCore/Terminales/TerminalConGuiones.h"

#include <utility>

#include "ZorveCore/Texto/Escape.h"

namespace zorve {

TerminalConGuiones::TerminalConGuiones(Nombres nombres, std::string rutaOsascript,
                                       AplicacionesInstaladas const& aplicaciones)
    : nombres_{std::move(nombres)}, rutaOsascript_{std::move(rutaOsascript)}, aplicaciones_{aplicaciones} {}

PlanDeApertura TerminalConGuiones::planDe(std::string guion) const {
  return std::vector{ComandoDeApertura{.ejecutable = rutaOsascript_, .args = {"-e", std::move(guion)}}};
}

std::string TerminalConGuiones::errorSinSesion(std::string const& ttyCorto) const {
  return "error " + literalDeAppleScript(sesionNoHallada(nombre(), ttyCorto));
}

std::string esElTty(std::string const& ttyCorto) {
  return "elTty is " + literalDeAppleScript("/dev/" + ttyCorto) + " or elTty is " +
         literalDeAppleScript(ttyCorto);
}

std::string literalDeLinea(std::string const& cwd, std::string const& comando) {
  return literalDeAppleScript("cd " + palabraDeShell(cwd) + " && " + comando);
}

}  // namespace zorve
