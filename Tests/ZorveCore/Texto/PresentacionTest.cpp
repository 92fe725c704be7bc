#include "ZorveCore/Texto/Presentacion.h"

#include <gtest/gtest.h>

#include <limits>

namespace zorve {
namespace {

constexpr Fecha ahora{std::chrono::duration<double>{1'700'000'000.0}};

std::string hace(double segundos) {
  return relativo(ahora - std::chrono::duration<double>{segundos}, ahora, "now");
}

TEST(Presentacion, menosDeUnMinutoEsAhora) {
  EXPECT_EQ(hace(0), "now");
  EXPECT_EQ(hace(59), "now");
  EXPECT_EQ(hace(59.999), "now");
  EXPECT_EQ(relativo(ahora, ahora, "ahora"), "ahora");
}

TEST(Presentacion, unaFechaFuturaEsAhora) {
  EXPECT_EQ(hace(-0.5), "now");
  EXPECT_EQ(hace(-1e9), "now");
}

TEST(Presentacion, losMinutosHorasYDiasSeTruncan) {
  EXPECT_EQ(hace(60), "1m");
  EXPECT_EQ(hace(119.9), "1m");
  EXPECT_EQ(hace(3599), "59m");
  EXPECT_EQ(hace(3600), "1h");
  EXPECT_EQ(hace(86399), "23h");
  EXPECT_EQ(hace(86400), "1d");
  EXPECT_EQ(hace(400.0 * 86400), "400d");
}

TEST(Presentacion, lasFechasImposiblesNoRompenNada) {
  EXPECT_EQ(hace(std::numeric_limits<double>::quiet_NaN()), "now");
  EXPECT_EQ(hace(-std::numeric_limits<double>::infinity()), "now");
  EXPECT_EQ(hace(1e300), "9000000000000000000d");
}

TEST(Presentacion, elHomeSeEscribeComoVirgulilla) {
  EXPECT_EQ(abreviar("/Users/ana", "/Users/ana"), "~");
  EXPECT_EQ(abreviar("/Users/ana/src", "/Users/ana"), "~/src");
  EXPECT_EQ(abreviar("/Users/ana/", "/Users/ana"), "~/");
}

TEST(Presentacion, loQueSoloComparteElPrefijoQuedaIgual) {
  EXPECT_EQ(abreviar("/Users/anabel/x", "/Users/ana"), "/Users/anabel/x");
  EXPECT_EQ(abreviar("/srv/Users/ana", "/Users/ana"), "/srv/Users/ana");
  EXPECT_EQ(abreviar("/Users", "/Users/ana"), "/Users");
  EXPECT_EQ(abreviar("", "/Users/ana"), "");
  EXPECT_EQ(abreviar("/x", ""), "/x");
}

TEST(Presentacion, lasMarcasSiguenALaRutaAbreviada) {
  using Tramos = std::vector<Tramo>;
  EXPECT_EQ(enLoAbreviado({{6, 9}, {10, 13}}, "/home/ana/src", "/home/ana"), (Tramos{{0, 1}, {2, 5}}));
  EXPECT_EQ(enLoAbreviado({{8, 11}}, "/home/ana/src", "/home/ana"), (Tramos{{0, 3}}));
  EXPECT_EQ(enLoAbreviado({{1, 3}, {6, 8}}, "/home/ana", "/home/ana"), (Tramos{{0, 1}}));
  EXPECT_EQ(enLoAbreviado({{6, 9}}, "/home/anabel", "/home/ana"), (Tramos{{6, 9}}));
}

}  // namespace
}  // namespace zorve
