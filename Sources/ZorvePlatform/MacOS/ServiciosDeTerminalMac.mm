#include "ZorveCore/Terminales/TerminalDeLinux.h"
#include "ZorveCore/Terminales/TerminalesDeMac.h"
#include "ZorvePlatform/MacOS/AplicacionesMac.h"
#include "ZorvePlatform/MacOS/ManejadorMac.h"
#include "ZorvePlatform/MacOS/PreferenciasMac.h"
#include "ZorvePlatform/ServiciosDeTerminal.h"

namespace zorve {

namespace {

/// Where a Linux package puts it: only plans for the other system name it here.
constexpr char const* ayudanteDeLinux = "/usr/libexec/zorve/zorve-terminal";

}  // namespace

ServiciosDeTerminal serviciosDeTerminal(std::string const& /*home*/) {
  ServiciosDeTerminal servicios{.aplicaciones = std::make_unique<AplicacionesMac>(),
                                .manejador = std::make_unique<ManejadorMac>(),
                                .preferencias = std::make_unique<PreferenciasMac>()};
  servicios.apertura.fuentes = fuentesDelSistema(todas(*servicios.aplicaciones), *servicios.manejador,
                                                 *servicios.preferencias, vocesDeAqui());
  servicios.ajenas = terminalesDeLinux(*servicios.aplicaciones, ayudanteDeLinux);
  return servicios;
}

VocesDelSistema vocesDeAqui() { return {}; }

}  // namespace zorve
