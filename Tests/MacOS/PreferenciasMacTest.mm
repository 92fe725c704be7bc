#import <Foundation/Foundation.h>

#include "Contratos/PreferenciasContrato.h"
#include "ZorvePlatform/MacOS/Cadenas.h"
#include "ZorvePlatform/MacOS/PreferenciasMac.h"

namespace zorve::contratos {
namespace {

constexpr char const* dominio = "com.sarnol.zorve.pruebas";

void vaciar() { [NSUserDefaults.standardUserDefaults removePersistentDomainForName:cadena(dominio)]; }

std::unique_ptr<Preferencias> vacias(dobles::CarpetaTemporal const& /*carpeta*/) {
  vaciar();
  return std::make_unique<PreferenciasMac>(dominio);
}

INSTANTIATE_TEST_SUITE_P(Mac, ContratoDePreferencias,
                         testing::Values(std::pair{"Mac", FabricaDePreferencias{vacias}}),
                         [](auto const& caso) { return std::string{caso.param.first}; });

class PreferenciasMacTest : public testing::Test {
 protected:
  PreferenciasMacTest() { vaciar(); }
  ~PreferenciasMacTest() override { vaciar(); }
  PreferenciasMac preferencias{dominio};
};

TEST_F(PreferenciasMacTest, loQueNoEsTextoNiBanderaEstaAusente) {
  NSUserDefaults* const almacen = [[NSUserDefaults alloc] initWithSuiteName:cadena(dominio)];
  [almacen setObject:@[ @"x" ] forKey:@"lista"];
  EXPECT_EQ(preferencias.leer("lista").value(), std::nullopt);
}

TEST_F(PreferenciasMacTest, otroObjetoSobreElMismoDominioVeLoEscrito) {
  ASSERT_TRUE(preferencias.escribir("zorve.idioma", std::string{"es"}).has_value());
  EXPECT_EQ(textoGuardado(PreferenciasMac{dominio}, "zorve.idioma"), "es");
}

}  // namespace
}  // namespace zorve::contratos
