#include "ZorveTui/Plano.h"

#include <gtest/gtest.h>

namespace zorve::tui {
namespace {

TEST(Plano, laFilaElegidaQuedaALaVista) {
  EXPECT_EQ(primeraALaVista(0, 5, 20, 4), 2U);
  EXPECT_EQ(primeraALaVista(10, 5, 20, 4), 5U);
  EXPECT_EQ(primeraALaVista(3, 5, 20, 4), 3U);
}

TEST(Plano, elFinalDeLaListaNoDejaHuecoSinNecesidad) {
  EXPECT_EQ(primeraALaVista(18, std::nullopt, 20, 4), 16U);
  EXPECT_EQ(primeraALaVista(3, std::nullopt, 2, 4), 0U);
}

TEST(Plano, enCuarentaPorOchoCabenTresSesiones) {
  auto const plano = planoDe({40, 8}, 0);
  EXPECT_EQ(plano.filasALaVista(), 3U);
  EXPECT_FALSE(plano.rayaAlta);
}

}  // namespace
}  // namespace zorve::tui
