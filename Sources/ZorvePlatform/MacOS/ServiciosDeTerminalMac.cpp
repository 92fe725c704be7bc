#include "ZorveCore/TerminalesDeLinux.h"
#include "ZorvePlatform/MacOS/AplicacionesMac.h"
#include "ZorvePlatform/MacOS/ManejadorMac.h"
#include "ZorvePlatform/MacOS/PreferenciasMac.h"
#include "ZorvePlatform/ServiciosDeTerminal.h"

namespace zorve {

namespace {

class ManejadorMac final : public ManejadorDelSistema {
 public:
  [[nodiscard]] std::optional<std::string> aplicacionPara(std::string_view tipo) const override {
    return tipo == CatalogoDeTerminales::tipoDeGuionDeShell ? manejadorRegistrado() : std::nullopt;
  }
};

}  // namespace

ServiciosDeTerminal serviciosDeTerminal(std::string const& /*home*/) {
  ServiciosDeTerminal servicios{.aplicaciones = std::make_unique<AplicacionesMac>(),
                                .manejador = std::make_unique<ManejadorMac>(),
                                .preferencias = std::make_unique<PreferenciasMac>(),
                                .rutaPs = "/bin/ps"};
  servicios.propias = todas(*servicios.aplicaciones);
  servicios.ajenas = terminalesDeLinux(*servicios.aplicaciones, "/usr/libexec/zorve/zorve-terminal");
  return servicios;
}

}  // namespace zorve
