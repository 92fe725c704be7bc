#include "zorvectl/Eleccion.h"

namespace zorve::ctl {

TerminalRef terminalConocida(ServiciosDeTerminal const& servicios, std::string_view identificador) {
  auto propia = buscarTerminal(identificador, servicios.propias());
  return propia ? propia : buscarTerminal(identificador, servicios.ajenas);
}

std::string terminalDesconocida(ServiciosDeTerminal const& servicios, std::string_view identificador) {
  std::string linea = "unknown terminal " + std::string{identificador} + "; known:";
  for (auto const* unas : {&servicios.propias(), &servicios.ajenas}) {
    for (auto const& terminal : *unas) linea += " " + terminal->identificador();
  }
  return linea;
}

}  // namespace zorve::ctl
