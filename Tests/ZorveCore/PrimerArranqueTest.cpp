#include "ZorveCore/PrimerArranque.h"

#include <gtest/gtest.h>

#include <string>

#include "Dobles/PreferenciasEnMemoria.h"

namespace zorve {
namespace {

using dobles::PreferenciasEnMemoria;

std::string const clave = "app.zorve.panelMostradoEnPrimerArranque";

TEST(PrimerArranque, laPrimeraVezMuestraYLoRecuerda) {
  PreferenciasEnMemoria preferencias;
  BanderasDeUsuario banderas{preferencias};
  EXPECT_TRUE(PrimerArranque{banderas}.debeMostrarElPanel());
  EXPECT_EQ(preferencias.leer(clave).value(), Preferencias::Valor{true});
}

TEST(PrimerArranque, laSegundaVezNoMuestraNiEscribe) {
  PreferenciasEnMemoria preferencias;
  BanderasDeUsuario banderas{preferencias};
  PrimerArranque const primero{banderas};
  EXPECT_TRUE(primero.debeMostrarElPanel());
  EXPECT_FALSE(primero.debeMostrarElPanel());
  EXPECT_EQ(preferencias.cambios(), 1);
}

TEST(PrimerArranque, enOtroArranqueTampocoMuestra) {
  PreferenciasEnMemoria preferencias;
  {
    BanderasDeUsuario banderas{preferencias};
    ASSERT_TRUE(PrimerArranque{banderas}.debeMostrarElPanel());
  }
  BanderasDeUsuario otras{preferencias};
  EXPECT_FALSE(PrimerArranque{otras}.debeMostrarElPanel());
}

TEST(PrimerArranque, unaBanderaGuardadaComoFalsaCuentaComoNinguna) {
  PreferenciasEnMemoria preferencias{{{clave, false}}};
  BanderasDeUsuario banderas{preferencias};
  EXPECT_TRUE(PrimerArranque{banderas}.debeMostrarElPanel());
}

TEST(PrimerArranque, conLaBanderaBorradaVuelveAMostrar) {
  PreferenciasEnMemoria preferencias{{{clave, true}}};
  BanderasDeUsuario banderas{preferencias};
  ASSERT_FALSE(PrimerArranque{banderas}.debeMostrarElPanel());
  ASSERT_TRUE(preferencias.quitar(clave));
  EXPECT_TRUE(PrimerArranque{banderas}.debeMostrarElPanel());
}

TEST(PrimerArranque, conPreferenciasIlegiblesNoMuestraNiEscribe) {
  PreferenciasEnMemoria preferencias;
  preferencias.fallarCon(IndexError{IndexSource::launcher, "damaged"});
  BanderasDeUsuario banderas{preferencias};
  EXPECT_FALSE(PrimerArranque{banderas}.debeMostrarElPanel());
  EXPECT_EQ(preferencias.cambios(), 0);
}

TEST(BanderasDeUsuario, cadaClaveTieneSuBandera) {
  PreferenciasEnMemoria preferencias;
  BanderasDeUsuario banderas{preferencias};
  banderas.marcar("una");
  EXPECT_TRUE(banderas.bandera("una"));
  EXPECT_FALSE(banderas.bandera("otra"));
}

}  // namespace
}  // namespace zorve
