#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "ZorveApp/Estilo.h"
#include "ZorveApp/Qt/Dibujo/FondoDeVidrio.h"
#include "ZorveApp/Qt/Puentes/Conversiones.h"
#include "ZorveApp/Qt/Ventanas/VentanaDelPanel.h"

namespace zorve {
namespace {

double lineal(double parte) {
  return parte <= 0.04045 ? parte / 12.92 : std::pow((parte + 0.055) / 1.055, 2.4);
}
double luminancia(QColor const& de) {
  return 0.2126 * lineal(de.redF()) + 0.7152 * lineal(de.greenF()) + 0.0722 * lineal(de.blueF());
}
double contraste(QColor const& uno, QColor const& otro) {
  auto const [menor, mayor] = std::minmax({luminancia(uno), luminancia(otro)});
  return (mayor + 0.05) / (menor + 0.05);
}

/// The glass at `y` with a white window behind it.
QColor vidrioSobreBlanco(double densidad, double y) {
  auto const encima =
      fondoDeVidrio(static_cast<int>(Medidas::panel.alto), densidad).pixelColor(0, static_cast<int>(y));
  auto const sobre = [&](double parte) { return parte * encima.alphaF() + 1 - encima.alphaF(); };
  return QColor::fromRgbF(static_cast<float>(sobre(encima.redF())),
                          static_cast<float>(sobre(encima.greenF())),
                          static_cast<float>(sobre(encima.blueF())));
}

class Contraste : public testing::TestWithParam<double> {};

TEST_P(Contraste, sobreUnaVentanaBlancaLosTextosSeLeen) {
  auto const arriba = vidrioSobreBlanco(GetParam(), 0);
  EXPECT_GE(contraste(aQColor(Estilo::textoAlto), arriba), 7);
  EXPECT_GE(contraste(aQColor(Estilo::texto), arriba), 7);
  auto const bajoLaBusqueda = vidrioSobreBlanco(GetParam(), Medidas::altoDeBusqueda);
  EXPECT_GE(contraste(aQColor(Estilo::textoTenue), bajoLaBusqueda), 4.5);
}

INSTANTIATE_TEST_SUITE_P(Densidades, Contraste,
                         testing::Values(densidadConDesenfoque, densidadSinDesenfoque));

}  // namespace
}  // namespace zorve
