#include "ZorveApp/Qt/Dibujo/FondoDeVidrio.h"

#include <gtest/gtest.h>

#include <set>

namespace zorve {
namespace {

double mediaDeAzul(QImage const& tira, int desde, int filas) {
  double suma = 0;
  for (int y = desde; y < desde + filas; ++y) {
    for (int x = 0; x < tira.width(); ++x) suma += qBlue(tira.pixel(x, y));
  }
  return suma / (filas * tira.width());
}

TEST(FondoDeVidrio, bajaSinEscalones) {
  auto const tira = fondoDeVidrio(1120, 0.95);
  double antes = mediaDeAzul(tira, 0, 8);
  for (int y = 8; y + 8 <= tira.height(); y += 8) {
    auto const ahora = mediaDeAzul(tira, y, 8);
    EXPECT_LE(ahora, antes + 0.02) << y;
    EXPECT_LT(antes - ahora, 0.4) << y;
    antes = ahora;
  }
}

TEST(FondoDeVidrio, cadaFilaTieneALoSumoDosTonosVecinos) {
  auto const tira = fondoDeVidrio(560, 0.95);
  for (int y = 0; y < tira.height(); ++y) {
    std::set<int> tonos;
    for (int x = 0; x < tira.width(); ++x) tonos.insert(qGreen(tira.pixel(x, y)));
    ASSERT_LE(tonos.size(), 2U);
    EXPECT_LE(*tonos.rbegin() - *tonos.begin(), 1);
  }
}

TEST(FondoDeVidrio, esTanOpacoComoSePide) {
  EXPECT_EQ(qAlpha(fondoDeVidrio(10, 1).pixel(0, 5)), 255);
  EXPECT_LT(qAlpha(fondoDeVidrio(10, 0.72).pixel(0, 5)), 235);
}

TEST(FondoDeVidrio, sinAltoEsUnaFila) { EXPECT_EQ(fondoDeVidrio(0, 1).height(), 1); }

}  // namespace
}  // namespace zorve
