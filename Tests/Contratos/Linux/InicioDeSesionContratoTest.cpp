#include "Contratos/InicioDeSesionContrato.h"
#include "Dobles/InicioDePrueba.h"
#include "ZorvePlatform/Linux/InicioDeSesionLinux.h"

namespace zorve::contratos {
namespace {

std::unique_ptr<InicioDeSesion> dePrueba(dobles::CarpetaTemporal const& /*carpeta*/, Sistema sistema) {
  auto inicio = std::make_unique<dobles::InicioDePrueba>();
  if (sistema == Sistema::seNiega) inicio->fallo = "Operation not permitted";
  return inicio;
}

std::unique_ptr<InicioDeSesion> autostart(dobles::CarpetaTemporal const& carpeta, Sistema sistema) {
  auto const config = carpeta.dentro("config");
  // A file where the folder should go: nobody can make it, not even the superuser.
  if (sistema == Sistema::seNiega) carpeta.escribir("config", "");
  EntornoLinux const entorno{.home = carpeta.ruta(), .path = {}, .configHome = config, .datos = {}};
  return std::make_unique<InicioDeSesionLinux>(entorno, "/opt/zorve/bin/zorve");
}

INSTANTIATE_TEST_SUITE_P(Todos, ContratoDeInicio,
                         testing::Values(std::pair{"DePrueba", FabricaDeInicio{dePrueba}},
                                         std::pair{"Autostart", FabricaDeInicio{autostart}}),
                         [](auto const& caso) { return std::string{caso.param.first}; });

}  // namespace
}  // namespace zorve::contratos
