#include <utility>

#include "ZorveCore/Terminales/AnfitrionaTmux.h"
#include "ZorveCore/Terminales/TerminalDeLinux.h"
#include "ZorveCore/Terminales/TerminalesDeMac.h"
#include "ZorvePlatform/Linux/AplicacionesLinux.h"
#include "ZorvePlatform/Linux/EntornoLinux.h"
#include "ZorvePlatform/Linux/ManejadorLinux.h"
#include "ZorvePlatform/Linux/PreferenciasLinux.h"
#include "ZorvePlatform/Linux/RutaDelAyudante.h"
#include "ZorvePlatform/Linux/SesionGraficaDeAhora.h"
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

/// Each look at the terminals looks at the windows' compositor too.
FuentesDeTerminales mirandoLaSesion(std::shared_ptr<SesionGraficaDeAhora> const& sesion,
                                    FuentesDeTerminales fuentes) {
  fuentes.sistema = [sesion, preguntar = std::move(fuentes.sistema)] {
    sesion->mirar();
    return preguntar();
  };
  return fuentes;
}

}  // namespace

ServiciosDeTerminal serviciosDeTerminal(std::string const& home) {
  auto const entorno = EntornoLinux::delProceso(home);
  ServiciosDeTerminal servicios{
      .aplicaciones = std::make_unique<AplicacionesLinux>(entorno),
      .manejador = std::make_unique<ManejadorLinux>(LugaresDelManejador::delProceso(entorno)),
      .preferencias = std::make_unique<PreferenciasLinux>(PreferenciasLinux::archivoPorDefecto(entorno)),
      .apertura = {.rutaPs = rutaDePs(entorno), .anfitrionas = anfitrionasDeLinux(rutaDelAyudante())}};
  auto const sesion = std::make_shared<SesionGraficaDeAhora>(sesionGraficaDelProceso(), rutaDelAyudante());
  auto propias = terminalesDeLinux(*servicios.aplicaciones, rutaDelAyudante(),
                                   SesionDeAhora{[sesion] { return sesion->actual(); }});
  servicios.apertura.fuentes = mirandoLaSesion(
      sesion,
      fuentesDelSistema(std::move(propias), *servicios.manejador, *servicios.preferencias, vocesDeAqui()));
  servicios.apertura.faltaUnInterruptor = [sesion] {
    return sesion->actual() == SesionGrafica::gnomeSinExtension;
  };
  servicios.ajenas = todas(*servicios.aplicaciones);
  return servicios;
}

VocesDelSistema vocesDeAqui() { return vocesDeLinux; }

}  // namespace zorve
