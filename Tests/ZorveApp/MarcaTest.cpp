#include "ZorveApp/Marca.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <vector>

namespace zorve {
namespace {

std::vector<Rectangulo> marcosDe(Marca const& marca) {
  auto const [izquierda, derecha] = std::ranges::minmax(marca.triangulo, {}, &Punto::x);
  auto const [arriba, abajo] = std::ranges::minmax(marca.triangulo, {}, &Punto::y);
  return {marca.elipse,
          marca.rectangulos[0].marco,
          marca.rectangulos[1].marco,
          {izquierda.x, arriba.y, derecha.x - izquierda.x, abajo.y - arriba.y}};
}

std::string leer(std::string const& ruta) {
  std::ifstream entrada{ruta, std::ios::binary};
  return {std::istreambuf_iterator<char>{entrada}, {}};
}

TEST(Marca, cabeEnSuMarcoYLoLlenaCasiEntero) {
  auto const marcos = marcosDe(Marca::en({0, 0, 1, 1}));
  for (auto const& marco : marcos) {
    EXPECT_GE(marco.x, 0);
    EXPECT_GE(marco.y, 0);
    EXPECT_LE(marco.x + marco.ancho, 1);
    EXPECT_LE(marco.y + marco.alto, 1);
  }
  auto const izquierda = std::ranges::min(marcos, {}, &Rectangulo::x).x;
  EXPECT_LT(izquierda, 0.1);
}

TEST(Marca, creceConSuMarco) {
  auto const chica = Marca::en({0, 0, 18, 18});
  auto const grande = Marca::en({100, 200, 36, 36});
  EXPECT_DOUBLE_EQ(grande.elipse.x, 100 + 2 * chica.elipse.x);
  EXPECT_DOUBLE_EQ(grande.elipse.y, 200 + 2 * chica.elipse.y);
  EXPECT_DOUBLE_EQ(grande.elipse.ancho, 2 * chica.elipse.ancho);
  EXPECT_DOUBLE_EQ(grande.triangulo[1].x, 100 + 2 * chica.triangulo[1].x);
  EXPECT_DOUBLE_EQ(grande.rectangulos[1].marco.y, 200 + 2 * chica.rectangulos[1].marco.y);
  EXPECT_DOUBLE_EQ(grande.rectangulos[0].radio, 2 * chica.rectangulos[0].radio);
}

TEST(Marca, a18PuntosSusPartesRedondasCaenEnPixelesEnteros) {
  auto const marca = Marca::en({0, 0, 18, 18});
  for (auto const& marco : {marca.elipse, marca.rectangulos[0].marco, marca.rectangulos[1].marco}) {
    for (double const lado : {marco.x, marco.y, marco.x + marco.ancho, marco.y + marco.alto}) {
      EXPECT_NEAR(lado, std::round(lado), 1e-9);
    }
  }
}

TEST(Marca, susPartesNoSeTocan) {
  auto const marcos = marcosDe(Marca::en({0, 0, 18, 18}));
  for (auto una = marcos.begin(); una != marcos.end(); ++una) {
    for (auto otra = una + 1; otra != marcos.end(); ++otra) {
      bool const separadas = una->x + una->ancho + 1 <= otra->x || otra->x + otra->ancho + 1 <= una->x ||
                             una->y + una->alto + 1 <= otra->y || otra->y + otra->alto + 1 <= una->y;
      EXPECT_TRUE(separadas);
    }
  }
}

TEST(Marca, laImagenDeLaBarraMide18PuntosAEscala2) {
  EXPECT_EQ(MarcaDeBarra::lado, 18);
  EXPECT_EQ(MarcaDeBarra::escala, 2);
}

TEST(Marca, elSvgTieneUnaElipseUnTrianguloYDosRectangulosRedondeados) {
  auto const svg = marcaEnSvg(18, {0, 0, 0, 1});
  EXPECT_EQ(svg,
            "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"18\" height=\"18\" viewBox=\"0 0 18 18\">\n"
            "  <ellipse cx=\"4\" cy=\"5\" rx=\"3\" ry=\"3\" fill=\"#000000\"/>\n"
            "  <path d=\"M11 9.75L17 13L11 16.25Z\" fill=\"#000000\"/>\n"
            "  <rect x=\"9\" y=\"3\" width=\"8\" height=\"4\" rx=\"2\" fill=\"#000000\"/>\n"
            "  <rect x=\"1\" y=\"11\" width=\"8\" height=\"4\" rx=\"2\" fill=\"#000000\"/>\n"
            "</svg>\n");
}

TEST(Marca, elSvgDiceLaOpacidadDeSuColor) {
  EXPECT_TRUE(marcaEnSvg(16, Color::blanco(0.5)).contains("fill=\"#ffffff\" fill-opacity=\"0.5\""));
}

TEST(Marca, losIconosGuardadosSonLosQueSeDibujan) {
  EXPECT_EQ(leer(ZORVE_ICONOS "/zorve.svg"), iconoEnSvg());
  EXPECT_EQ(leer(ZORVE_ICONOS "/zorve-symbolic.svg"), marcaEnSvg(16, {0, 0, 0, 1}));
}

}  // namespace
}  // namespace zorve
