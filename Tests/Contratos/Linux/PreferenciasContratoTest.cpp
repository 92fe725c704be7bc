#include "Contratos/PreferenciasContrato.h"

#include "Dobles/PreferenciasEnMemoria.h"
#include "ZorvePlatform/Linux/PreferenciasLinux.h"

namespace zorve::contratos {
namespace {

INSTANTIATE_TEST_SUITE_P(
    Todas, ContratoDePreferencias,
    testing::Values(std::pair{"EnMemoria", FabricaDePreferencias{[](dobles::CarpetaTemporal const&) {
                                return std::make_unique<dobles::PreferenciasEnMemoria>();
                              }}},
                    std::pair{"Linux", FabricaDePreferencias{[](dobles::CarpetaTemporal const& carpeta) {
                                return std::make_unique<PreferenciasLinux>(carpeta.dentro("a/b/p.json"));
                              }}}),
    [](auto const& caso) { return std::string{caso.param.first}; });

}  // namespace
}  // namespace zorve::contratos
