#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "ZorveApp/Estilo.h"
#include "ZorveApp/Qt/Dibujo/EstiloQt.h"
#include "ZorveApp/Qt/Dibujo/FondoDeVidrio.h"
#include "ZorveApp/Qt/Puentes/Conversiones.h"
#include "ZorveApp/Qt/Ventanas/VentanaDelPanel.h"

namespace zorve {
namespace {

constexpr double textoCorriente = 4.5;
constexpr double textoConContraste = 7;

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

QColor encima(QColor const& capa, QColor const& debajo) {
  auto const mezcla = [a = capa.alphaF()](float arriba, float abajo) { return arriba * a + abajo * (1 - a); };
  return QColor::fromRgbF(mezcla(capa.redF(), debajo.redF()), mezcla(capa.greenF(), debajo.greenF()),
                          mezcla(capa.blueF(), debajo.blueF()));
}

/// The glass of a window so high, at `y`, with a white window behind it.
QColor vidrioSobreBlanco(double densidad, double alto, double y) {
  return encima(fondoDeVidrio(static_cast<int>(alto), densidad).pixelColor(0, static_cast<int>(y)),
                Qt::white);
}

/// A text as it is drawn on a fill over the glass.
struct Escrito {
  char const* que;
  QColor texto;
  QColor relleno;
};

/// Of the panel's rows, under the search band: each text on each card that can be under it.
std::vector<Escrito> enLasFilas(ColoresQt const& c) {
  std::vector<Escrito> todo;
  for (auto const& [que, relleno] :
       {std::pair{"plain row", c.filaApagada}, std::pair{"selected row", c.filaSeleccionada},
        std::pair{"hovered row", c.filaAlPasar}, std::pair{"pressed row", c.filaAlPulsar}}) {
    bool const encendida = relleno != c.filaApagada;
    todo.push_back({que, c.textoAlto, relleno});
    todo.push_back({que, encendida ? c.textoEncendido : c.textoTenue, relleno});
    todo.push_back({que, c.ember, relleno});
    todo.push_back({que, c.acento, relleno});
  }
  todo.push_back({"error", c.texto, c.fondoDeError});
  todo.push_back({"notice", c.texto, c.fondoDeAviso});
  todo.push_back({"placeholder", c.textoTenue, c.filaApagada});
  return todo;
}

std::vector<Escrito> enElPie(ColoresQt const& c) {
  return {{"legend", c.textoTenue, c.filaApagada}, {"key", c.texto, c.fondoDeTecla}};
}

std::vector<Escrito> enLosAjustes(ColoresQt const& c) {
  return {{"caption", c.textoTenue, c.filaApagada},
          {"section", c.texto, c.fondoDeBarraLateral},
          {"title", c.textoAlto, c.fondoDeOpcion},
          {"note", c.textoTenue, c.fondoDeOpcion},
          {"hovered note", c.textoEncendido, c.opcionAlPasar},
          {"pressed note", c.textoEncendido, c.opcionAlPulsar},
          {"marked note", c.textoEncendido, c.filaSeleccionada}};
}

void seLee(std::vector<Escrito> const& escritos, QColor const& vidrio, double minimo) {
  for (auto const& [que, texto, relleno] : escritos) {
    EXPECT_GE(contraste(texto, encima(relleno, vidrio)), minimo) << que << " " << texto.name().toStdString();
  }
}

class Contraste : public testing::TestWithParam<double> {};

TEST_P(Contraste, sobreUnaVentanaBlancaTodoTextoDelPanelSeLee) {
  ColoresQt const colores;
  auto const [ancho, alto] = Medidas::panel;
  seLee(enLasFilas(colores), vidrioSobreBlanco(GetParam(), alto, Medidas::altoDeBusqueda), textoCorriente);
  seLee(enLasFilas(colores), vidrioSobreBlanco(GetParam(), alto, alto - 1), textoCorriente);
  seLee(enElPie(colores), vidrioSobreBlanco(GetParam(), alto, alto - Medidas::altoDelPie), textoCorriente);
  seLee({{"search", colores.textoAlto, colores.filaApagada}}, vidrioSobreBlanco(GetParam(), alto, 0),
        textoConContraste);
}

INSTANTIATE_TEST_SUITE_P(Densidades, Contraste,
                         testing::Values(densidadConDesenfoque, densidadSinDesenfoque, 1.0));

TEST(ContrasteDeLosAjustes, todoTextoSeLee) {
  // The first caption's place.
  constexpr double primera = 20;
  seLee(enLosAjustes({}), vidrioSobreBlanco(1, Medidas::ajustes.alto, primera), textoCorriente);
}

TEST(AltoContraste, todoTextoSeLeeDeLejos) {
  auto const colores = coloresConContraste();
  auto const vidrio = vidrioSobreBlanco(1, Medidas::panel.alto, Medidas::altoDeBusqueda);
  seLee(enLasFilas(colores), vidrio, textoConContraste);
  seLee(enElPie(colores), vidrio, textoConContraste);
  seLee(enLosAjustes(colores), vidrioSobreBlanco(1, Medidas::ajustes.alto, 20), textoConContraste);
}

TEST(AltoContraste, losContornosSeVen) {
  constexpr double deLoQueNoEsTexto = 3;
  auto const c = coloresConContraste();
  auto const vidrio = vidrioSobreBlanco(1, Medidas::panel.alto, 0);
  for (auto const& contorno : {c.borde, c.bordeSuperior, c.contornoDeFila, c.contornoDeAviso,
                               c.contornoDeError, c.lineaFila, c.aroInactivo, c.foco}) {
    EXPECT_GE(contraste(encima(contorno, vidrio), vidrio), deLoQueNoEsTexto)
        << contorno.name(QColor::HexArgb).toStdString();
  }
  EXPECT_GT(c.trazoDeSeleccion, ColoresQt{}.trazoDeSeleccion);
}

}  // namespace
}  // namespace zorve
