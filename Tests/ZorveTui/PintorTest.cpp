#include "ZorveTui/Pintor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zorve::tui {
namespace {

using testing::HasSubstr;
using testing::Not;

Cuadro cuadroCon(std::string_view texto, std::optional<Posicion> cursor = Posicion{0, 0}) {
  Cuadro cuadro{.lienzo = Lienzo{{20, 2}}, .cursor = cursor, .filaEnLinea = {}};
  cuadro.lienzo.poner({1, 0}, texto, {});
  return cuadro;
}

TEST(Pintor, loPrimeroBorraYEscribeTodo) {
  Pintor pintor;
  auto const bytes = pintor.pintar(cuadroCon("hola"));
  EXPECT_THAT(bytes, HasSubstr("\x1B[2J"));
  EXPECT_THAT(bytes, HasSubstr("\x1B[2;1H"));
  EXPECT_THAT(bytes, HasSubstr("hola"));
}

TEST(Pintor, loIgualNoSeManda) {
  Pintor pintor;
  (void)pintor.pintar(cuadroCon("hola"));
  EXPECT_EQ(pintor.pintar(cuadroCon("hola")), "");
}

TEST(Pintor, soloSeMandaLoQueCambia) {
  Pintor pintor;
  (void)pintor.pintar(cuadroCon("hola que tal"));
  auto const bytes = pintor.pintar(cuadroCon("hola que Tal"));
  EXPECT_EQ(bytes, "\x1B[?25l\x1B[2;10HT\x1B[1;1H\x1B[?25h");
}

TEST(Pintor, loQueSeAcortaSeBorraHastaElFin) {
  Pintor pintor;
  (void)pintor.pintar(cuadroCon("hola que tal"));
  EXPECT_EQ(pintor.pintar(cuadroCon("hola")), "\x1B[?25l\x1B[2;5H\x1B[K\x1B[1;1H\x1B[?25h");
}

TEST(Pintor, trasUnAnchoDudosoSeDiceDondeSigue) {
  Pintor pintor;
  EXPECT_THAT(pintor.pintar(cuadroCon("日x")), HasSubstr("日\x1B[2;3Hx"));
}

TEST(Pintor, olvidarLoMandaTodoOtraVez) {
  Pintor pintor;
  (void)pintor.pintar(cuadroCon("hola"));
  pintor.olvidar();
  EXPECT_THAT(pintor.pintar(cuadroCon("hola")), HasSubstr("hola"));
}

TEST(Pintor, unCuadroVaEntreLasMarcasDeSalidaSincronizadaSoloSiLasHay) {
  Pintor pintor;
  EXPECT_THAT(pintor.pintar(cuadroCon("a")), Not(HasSubstr("2026")));
  pintor.ponerSincronia(true);
  auto const bytes = pintor.pintar(cuadroCon("b"));
  EXPECT_TRUE(bytes.starts_with("\x1B[?2026h"));
  EXPECT_TRUE(bytes.ends_with("\x1B[?2026l"));
}

TEST(Pintor, elCursorSeMueveAunqueNadaMasCambie) {
  Pintor pintor;
  (void)pintor.pintar(cuadroCon("a"));
  EXPECT_EQ(pintor.pintar(cuadroCon("a", Posicion{0, 7})), "\x1B[?25l\x1B[1;8H\x1B[?25h");
}

}  // namespace
}  // namespace zorve::tui
