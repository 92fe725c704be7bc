#include <gtest/gtest.h>

#include "ZorvePlatform/MacOS/AplicacionesMac.h"
#include "ZorvePlatform/MacOS/Cadenas.h"
#include "ZorvePlatform/MacOS/DirectorioHomeMac.h"
#include "ZorvePlatform/MacOS/ManejadorMac.h"

namespace zorve {
namespace {

TEST(AplicacionesMac, laTerminalDelSistemaEstaSiempre) {
  EXPECT_TRUE(AplicacionesMac{}.hay("com.apple.Terminal"));
}

TEST(AplicacionesMac, unIdentificadorDeNadieNoEsta) {
  EXPECT_FALSE(AplicacionesMac{}.hay("com.sarnol.no-existe"));
  EXPECT_FALSE(AplicacionesMac{}.hay(""));
}

TEST(ManejadorMac, losGuionesDeShellTienenQuienLosAbra) {
  auto const quien = ManejadorMac{}.preguntar("com.apple.terminal.shell-script").aplicacion;
  ASSERT_TRUE(quien.has_value());
  EXPECT_TRUE(AplicacionesMac{}.hay(*quien));
}

TEST(ManejadorMac, unTipoQueElSistemaNoConoceNoTieneNadie) {
  EXPECT_EQ(ManejadorMac{}.preguntar("com.sarnol.tipo.que.no.existe"), RespuestaDelSistema{});
}

TEST(DirectorioHomeMac, esAbsolutoYSinBarraFinal) {
  auto const home = directorioHomeMac();
  ASSERT_FALSE(home.empty());
  EXPECT_EQ(home.front(), '/');
  EXPECT_NE(home.back(), '/');
}

TEST(Cadenas, losBytesQueNoSonUtf8PasanComoCaracterDeReemplazo) {
  EXPECT_EQ(textoDe(cadena("a\xFFz")), "a\xEF\xBF\xBDz");
}

TEST(Cadenas, unByteNuloSeConserva) {
  std::string const conNulo{"a\0b", 3};
  EXPECT_EQ(textoDe(cadena(conNulo)), conNulo);
}

TEST(Cadenas, nadaEsElTextoVacio) { EXPECT_EQ(textoDe(nil), ""); }

}  // namespace
}  // namespace zorve
