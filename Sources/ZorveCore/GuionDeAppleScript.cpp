#include "ZorveCore/GuionDeAppleScript.h"

#include <utility>

#include "ZorveCore/Escape.h"

namespace zorve {

PlanDeApertura planDeGuion(std::string const& rutaOsascript, std::string guion) {
  return std::vector{ComandoDeApertura{.ejecutable = rutaOsascript, .args = {"-e", std::move(guion)}}};
}

std::string lineaDeShell(std::string const& cwd, std::string const& comando) {
  return "cd " + palabraDeShell(cwd) + " && " + comando;
}

std::string sesionNoHallada(std::string const& nombre, std::string const& ttyCorto) {
  return "Zorve found no " + nombre + " session on " + ttyCorto +
         ". The Claude session is still alive, but its window no longer exists.";
}

}  // namespace zorve
