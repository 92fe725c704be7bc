#include "zorvectl/Eleccion.h"

#include "zorvectl/Salida.h"

namespace zorve::ctl {

TerminalRef terminalConocida(ServiciosDeTerminal const& servicios, std::string_view identificador) {
  auto propia = buscarTerminal(identificador, servicios.propias);
  return propia ? propia : buscarTerminal(identificador, servicios.ajenas);
}

std::string terminalDesconocida(ServiciosDeTerminal const& servicios, std::string_view identificador) {
  std::string linea = "unknown terminal " + std::string{identificador} + "; known:";
  for (auto const* unas : {&servicios.propias, &servicios.ajenas}) {
    for (auto const& terminal : *unas) linea += " " + terminal->identificador();
  }
  return linea;
}

void avisarDePreferencias(Preferencias const& preferencias) {
  auto const valor = preferencias.leer(std::string{CatalogoDeTerminales::clavePreferencia});
  if (!valor) avisar("zorvectl: " + valor.error().mensaje);
}

}  // namespace zorve::ctl
