#include "ZorveCore/TerminalTmux.h"
#include "ZorveCore/TerminalesDeLinux.h"
#include "ZorvePlatform/Linux/AplicacionesLinux.h"
#include "ZorvePlatform/Linux/EntornoLinux.h"
#include "ZorvePlatform/Linux/ManejadorLinux.h"
#include "ZorvePlatform/Linux/PreferenciasLinux.h"
#include "ZorvePlatform/Linux/RutaDelAyudante.h"
#include "ZorvePlatform/Linux/SesionGraficaLinux.h"
#include "ZorvePlatform/ServiciosDeTerminal.h"

namespace zorve {

namespace {

std::string rutaDePs(EntornoLinux const& entorno) {
  constexpr char const* acostumbrada = "/bin/ps";
  if (!ejecutableEn(entorno, acostumbrada).empty()) return acostumbrada;
  auto hallada = ejecutableEn(entorno, "ps");
  return hallada.empty() ? acostumbrada : hallada;
}

}  // namespace

ServiciosDeTerminal serviciosDeTerminal(std::string const& home) {
  auto const entorno = EntornoLinux::delProceso(home);
  ServiciosDeTerminal servicios{
      .aplicaciones = std::make_unique<AplicacionesLinux>(entorno),
      .manejador = std::make_unique<ManejadorLinux>(LugaresDelManejador::delProceso(entorno)),
      .preferencias = std::make_unique<PreferenciasLinux>(PreferenciasLinux::archivoPorDefecto(entorno)),
      .rutaPs = rutaDePs(entorno)};
  servicios.propias =
      terminalesDeLinux(*servicios.aplicaciones, rutaDelAyudante(), sesionGraficaDelProceso());
  servicios.anfitrionas = anfitrionasDeLinux(rutaDelAyudante());
  servicios.ajenas = todas(*servicios.aplicaciones);
  return servicios;
}

}  // namespace zorve
