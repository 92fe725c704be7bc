#include "ZorveTui/Renglon.h"

#include <gtest/gtest.h>

namespace zorve::tui {
namespace {

TEST(Renglon, seEscribeDondeEstaElCaret) {
  Renglon renglon;
  renglon.escribir("ac");
  renglon.izquierda();
  renglon.escribir("b");
  EXPECT_EQ(renglon.texto(), "abc");
  EXPECT_EQ(renglon.antes(), "ab");
  EXPECT_EQ(renglon.despues(), "c");
}

TEST(Renglon, elCaretVaPorCaracteresDeLosQueSeVen) {
  Renglon renglon;
  renglon.poner("ae\u0301\U0001F468\u200D\U0001F469");
  renglon.izquierda();
  EXPECT_EQ(renglon.antes(), "ae\u0301");
  renglon.izquierda();
  EXPECT_EQ(renglon.antes(), "a");
  renglon.derecha();
  EXPECT_EQ(renglon.antes(), "ae\u0301");
}

TEST(Renglon, borrarQuitaUnCaracterEntero) {
  Renglon renglon;
  renglon.poner("ne\u0301");
  renglon.borrarAtras();
  EXPECT_EQ(renglon.texto(), "n");
  renglon.alPrincipio();
  renglon.borrarAtras();
  EXPECT_EQ(renglon.texto(), "n");
  renglon.borrarAdelante();
  EXPECT_EQ(renglon.texto(), "");
  renglon.borrarAdelante();
  EXPECT_EQ(renglon.texto(), "");
}

TEST(Renglon, borrarLaPalabraSeLlevaLosBlancosQueLaSiguen) {
  Renglon renglon;
  renglon.poner("uno dos  ");
  renglon.borrarPalabra();
  EXPECT_EQ(renglon.texto(), "uno ");
  renglon.borrarPalabra();
  EXPECT_EQ(renglon.texto(), "");
}

TEST(Renglon, lasLineasPegadasQuedanEnUnaSinControles) {
  Renglon renglon;
  renglon.escribir("a\nb\tc\x1B[31md\x07");
  EXPECT_EQ(renglon.texto(), "a b c[31md");
}

TEST(Renglon, loQueNoEsUtf8SeVeReemplazado) {
  Renglon renglon;
  renglon.escribir("a\xFFz");
  EXPECT_EQ(renglon.texto(), "a\uFFFDz");
}

}  // namespace
}  // namespace zorve::tui
