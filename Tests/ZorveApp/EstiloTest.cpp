#include "ZorveApp/Estilo.h"

#include <gtest/gtest.h>

namespace zorve {
namespace {

using namespace Estilo;

TEST(Estilo, losColoresDe8BitsSonExactos) {
  EXPECT_EQ(textoAlto, (Color{244 / 255.0, 246 / 255.0, 250 / 255.0, 1}));
  EXPECT_EQ(texto, (Color{231 / 255.0, 234 / 255.0, 240 / 255.0, 1}));
  EXPECT_EQ(textoTenue, (Color{138 / 255.0, 147 / 255.0, 166 / 255.0, 1}));
  EXPECT_EQ(textoDebil, (Color{107 / 255.0, 115 / 255.0, 131 / 255.0, 1}));
  EXPECT_EQ(acento, (Color{45 / 255.0, 212 / 255.0, 191 / 255.0, 1}));
  EXPECT_EQ(ember, (Color{232 / 255.0, 169 / 255.0, 76 / 255.0, 1}));
  EXPECT_EQ(error, (Color{224 / 255.0, 121 / 255.0, 106 / 255.0, 1}));
}

TEST(Estilo, losBlancosSoloTienenOpacidad) {
  EXPECT_EQ(borde, (Color{1, 1, 1, 0.12}));
  EXPECT_EQ(bordeSuperior, (Color{1, 1, 1, 0.18}));
  EXPECT_EQ(linea, (Color{1, 1, 1, 0.08}));
  EXPECT_EQ(lineaFila, (Color{1, 1, 1, 0.04}));
}

TEST(Estilo, elTinteYLaFilaSeleccionadaSonSuColorConOpacidad) {
  EXPECT_EQ(tinteBase, (Color{0.04847, 0.08596, 0.10525, 1}));
  EXPECT_EQ(tinte, (Color{0.04847, 0.08596, 0.10525, 0.26}));
  EXPECT_EQ(filaSeleccionada, (Color{45 / 255.0, 212 / 255.0, 191 / 255.0, 0.1}));
}

TEST(Estilo, losDegradadosBajanDelBordeSuperior) {
  EXPECT_EQ(luzSuperior, (Degradado{{1, 1, 1, 0.1}, {1, 1, 1, 0.045}}));
  EXPECT_EQ(bordeDeLuz, (Degradado{{1, 1, 1, 0.18}, {1, 1, 1, 0.12}}));
}

TEST(Medidas, elPanelYLaVentanaTienenSuTamano) {
  EXPECT_EQ(Medidas::panel.ancho, 440);
  EXPECT_EQ(Medidas::panel.alto, 560);
  EXPECT_EQ(Medidas::ajustes.ancho, 620);
  EXPECT_EQ(Medidas::ajustes.alto, 460);
}

TEST(Medidas, lasLetrasTienenSuCuerpo) {
  EXPECT_EQ(Medidas::letraDeBusqueda, 14);
  EXPECT_EQ(Medidas::letraDeTitulo, 14);
  EXPECT_EQ(Medidas::letraDeRuta, 11.5);
  EXPECT_EQ(Medidas::letraDerecha, 11);
}

}  // namespace
}  // namespace zorve
