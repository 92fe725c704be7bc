#include "ZorveTerminal/VentanasDeKWin.h"

#include <gtest/gtest.h>

namespace zorve::ayudante {
namespace {

TEST(VentanasDeLaRespuesta, sonLasDelGuionConNombreProcesoYTitulo) {
  EXPECT_EQ(ventanasDeLaRespuesta(R"([{"id":"{0a-1f}","pid":7,"name":"a ñ","focused":true},
                                      {"id":"{2}","pid":8,"name":"","focused":false}])"),
            (std::vector<VentanaDeKWin>{{"{0a-1f}", {0, 7, "a ñ", true}}, {"{2}", {0, 8, "", false}}}));
}

TEST(VentanasDeLaRespuesta, unNombreQueNoEsDeKWinNoEntraEnNingunGuion) {
  for (auto const* const nombre : {"", "\\\"", "x", "1\\n", "');alert('"}) {
    auto const texto = std::string{R"([{"id":")"} + nombre + R"(","pid":7,"name":"a","focused":true}])";
    EXPECT_TRUE(ventanasDeLaRespuesta(texto).empty()) << nombre;
  }
}

TEST(VentanasDeLaRespuesta, unProcesoQueNoCabeEnElTipoNoPasaPorOtro) {
  EXPECT_TRUE(ventanasDeLaRespuesta(R"([{"id":"{1}","pid":4294967303,"name":"a","focused":true}])").empty());
}

TEST(VentanasDeLaRespuesta, loQueNoSeEntiendeNoTieneVentanas) {
  for (auto const* const texto :
       {"", "{", "{}", "7", "[7]", R"([{"id":"{1}"}])", R"([{"id":1,"pid":"x"}])"}) {
    EXPECT_TRUE(ventanasDeLaRespuesta(texto).empty()) << texto;
  }
}

}  // namespace
}  // namespace zorve::ayudante
