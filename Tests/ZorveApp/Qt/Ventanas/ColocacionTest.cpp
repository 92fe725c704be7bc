#include "ZorveApp/Qt/Ventanas/Colocacion.h"

#include <gtest/gtest.h>

#include "ZorveApp/Qt/Ventanas/Barras.h"

namespace zorve {
namespace {

constexpr QSize panel{440, 560};
constexpr QRect pantalla{0, 0, 1280, 800};

QRect puesto(Ancla const& ancla, QRect const& en, QRect const& libre) {
  return {colocar(panel, ancla, en, libre), panel};
}

TEST(Colocacion, bajoUnaBarraDeArribaCuelgaCentradoDelIcono) {
  QRect const libre{0, 26, 1280, 774};
  auto const marco = puesto({QRect{600, 2, 22, 22}}, pantalla, libre);
  EXPECT_EQ(marco.top(), 26 + holgura);
  EXPECT_NEAR(marco.center().x(), 610, 1);
}

TEST(Colocacion, sobreUnaBarraDeAbajoTerminaJustoEncima) {
  QRect const libre{0, 0, 1280, 770};
  EXPECT_EQ(puesto({QRect{600, 775, 22, 22}}, pantalla, libre).bottom(), 769 - holgura);
}

TEST(Colocacion, juntoAUnaBarraLateralQuedaALaAlturaDelIcono) {
  EXPECT_EQ(puesto({QRect{2, 400, 22, 22}}, pantalla, {30, 0, 1250, 800}).left(), 30 + holgura);
  EXPECT_EQ(puesto({QRect{1255, 400, 22, 22}}, pantalla, {0, 0, 1250, 800}).right(), 1249 - holgura);
}

TEST(Colocacion, unIconoEnLaEsquinaNoSacaElPanelDeLaPantalla) {
  QRect const libre{0, 26, 1280, 774};
  auto const seguro = libre.adjusted(holgura, holgura, -holgura, -holgura);
  for (int const x : {0, 1258}) {
    auto const marco = puesto({QRect{x, 2, 22, 22}}, pantalla, libre);
    EXPECT_TRUE(seguro.contains(marco)) << x;
  }
}

TEST(Colocacion, enLaSegundaPantallaSeQuedaEnElla) {
  QRect const segunda{1280, 0, 1920, 1080};
  QRect const libre{1280, 0, 1920, 1040};
  auto const marco = puesto({QRect{3170, 1050, 22, 22}}, segunda, libre);
  EXPECT_TRUE(libre.contains(marco));
  EXPECT_EQ(marco.bottom(), 1039 - holgura);
}

TEST(Colocacion, conUnPuntoYSinBarraConocidaDejaSitioAlIcono) {
  auto const marco = puesto({QRect{640, 12, 1, 1}, true}, pantalla, pantalla);
  EXPECT_GE(marco.top(), 12 + 10);
  EXPECT_LE(marco.top(), 12 + 30);
}

TEST(Colocacion, unaPantallaMasBajaQueElPanelEmpiezaArriba) {
  QRect const baja{0, 0, 800, 480};
  EXPECT_EQ(puesto({QRect{400, 460, 20, 20}}, baja, baja).top(), holgura);
}

TEST(Colocacion, sinAnclaQuedaCentradoYEnLaParteDeArriba) {
  QRect const marco{colocarSinAncla(panel, pantalla), panel};
  EXPECT_NEAR(marco.center().x(), pantalla.center().x(), 1);
  EXPECT_LT(marco.center().y(), pantalla.center().y());
}

TEST(Colocacion, enUnaPantallaBajaElPanelEsMasBajo) {
  EXPECT_EQ(tamanoQueCabe({440, 560}, {0, 0, 910, 486}), (QSize{440, 474}));
  EXPECT_EQ(tamanoQueCabe({440, 560}, {0, 0, 400, 900}), (QSize{388, 560}));
}

TEST(Colocacion, dondeCabeElPanelEsElDeSiempre) {
  EXPECT_EQ(tamanoQueCabe({440, 560}, {0, 0, 452, 572}), (QSize{440, 560}));
}

TEST(Barras, unPuntalDaElRectanguloDeSuBorde) {
  auto const barras = barrasDePuntal({0, 0, 26, 0, 0, 0, 0, 0, 0, 1279, 0, 0}, {2560, 800});
  EXPECT_EQ(barras, (std::vector{QRect{0, 0, 1280, 26}}));
}

TEST(Barras, unPuntalCortoNoDiceNada) { EXPECT_TRUE(barrasDePuntal({1, 2, 3}, {100, 100}).empty()); }

TEST(Barras, unaBarraDeLaPantallaVecinaNoQuitaNada) {
  QRect const segunda{1280, 0, 1280, 800};
  EXPECT_EQ(sinBarras(segunda, {QRect{0, 0, 1280, 26}}), segunda);
}

TEST(Barras, elPuntalDeUnaPantallaBajaDeUnEscritorioAltoEmpiezaEnSuBorde) {
  QRect const corta{0, 0, 1280, 800};
  auto const barras = barrasDePuntal({0, 0, 0, 280 + 30, 0, 0, 0, 0, 0, 0, 0, 1279}, {2560, 1080});
  EXPECT_EQ(sinBarras(corta, barras), (QRect{0, 0, 1280, 770}));
}

TEST(Barras, barrasEnLosCuatroBordesDejanElMedio) {
  std::vector const barras{QRect{0, 0, 1280, 20}, QRect{0, 780, 1280, 20}, QRect{0, 20, 30, 760},
                           QRect{1250, 20, 30, 760}};
  EXPECT_EQ(sinBarras(pantalla, barras), (QRect{30, 20, 1220, 760}));
}

TEST(Barras, loQueTapaMediaPantallaNoEsBarra) {
  EXPECT_EQ(sinBarras(pantalla, {QRect{0, 0, 1280, 700}}), pantalla);
}

}  // namespace
}  // namespace zorve
