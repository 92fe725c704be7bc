#include "ZorveTui/Dibujo.h"

#include <algorithm>
#include <utility>

#include "ZorveCore/Texto/TextoVisible.h"
#include "ZorveTui/Ancho.h"
#include "ZorveTui/DibujoDeBanda.h"
#include "ZorveTui/DibujoDeFila.h"
#include "ZorveTui/DibujoDePie.h"
#include "ZorveTui/Plano.h"
#include "ZorveTui/TextosDelTerminal.h"

namespace zorve::tui {

namespace {

constexpr std::string_view indicador = "❯";
constexpr std::size_t columnaDeBusqueda = 4;
constexpr std::size_t margen = 2;

std::string cuenta(PanelView const& panel) {
  auto const filas = panel.cantidadDeFilas();
  if (filas == 0) return {};
  auto const elegida = panel.filaSeleccionada();
  return (elegida ? std::to_string(*elegida + 1) + "/" : std::string{}) + std::to_string(filas);
}

/// The search text with its caret, as much of it as fits; gives where the cursor stands.
Posicion dibujarBusqueda(Lienzo& lienzo, Renglon const& busqueda, std::size_t hasta) {
  lienzo.poner({0, margen}, indicador, {.tinta = Tinta::acento, .negrita = true});
  auto const libres = hasta - columnaDeBusqueda - 1;
  auto const antes = textoVisible(busqueda.antes());
  auto const puesto = desdeDonde(antes, libres);
  auto const caret = lienzo.poner({0, columnaDeBusqueda}, puesto, {.tinta = Tinta::alto});
  auto const queda = libres - anchoDe(puesto);
  lienzo.poner({0, caret}, hastaDonde(textoVisible(busqueda.despues()), queda), {.tinta = Tinta::alto});
  return {0, caret};
}

/// Where in the list the screen is, in its last column.
void dibujarBarra(Lienzo& lienzo, Plano const& plano, std::size_t primera, std::size_t filas) {
  auto const aLaVista = plano.filasALaVista();
  if (filas <= aLaVista) return;
  auto const lineas = plano.lineasDeLista;
  auto const alto = std::max<std::size_t>(1, lineas * aLaVista / filas);
  auto const desde = (lineas - alto) * primera / (filas - aLaVista);
  for (std::size_t i = 0; i < alto; ++i) {
    lienzo.poner({plano.lista + desde + i, lienzo.tamano().columnas - 1}, "▕", {.tinta = Tinta::debil});
  }
}

void dibujarFilas(Cuadro& cuadro, PanelView const& panel, Vista const& vista, Plano const& plano) {
  auto const filas = panel.cantidadDeFilas();
  auto const ultima = std::min(filas, vista.primera + plano.filasALaVista());
  auto linea = plano.lista;
  for (auto fila = vista.primera; fila < ultima; ++fila, linea += lineasPorFila) {
    dibujarFila(cuadro.lienzo, linea, panel.fila(fila));
    for (std::size_t i = 0; i < lineasPorFila; ++i) cuadro.filaEnLinea[linea + i] = fila;
  }
  dibujarBarra(cuadro.lienzo, plano, vista.primera, filas);
}

void dibujarMarcador(Lienzo& lienzo, Plano const& plano, std::string_view texto) {
  auto const columnas = lienzo.tamano().columnas;
  auto const cabido = hastaDonde(texto, columnas - 2 * margen);
  Posicion const donde{plano.lista + (plano.lineasDeLista - 1) / 2, (columnas - anchoDe(cabido)) / 2};
  lienzo.poner(donde, cabido, {.tinta = Tinta::tenue});
}

Cuadro dibujarQueNoCabe(Vista const& vista, Tamano tamano) {
  Cuadro cuadro{.lienzo = Lienzo{tamano}, .cursor = {}, .filaEnLinea = {}};
  cuadro.filaEnLinea.resize(tamano.filas);
  auto const texto = TextosDelTerminal::noCabe(vista.idioma, tamanoMinimo, tamano);
  auto const lineas = enLineas(texto, tamano.columnas);
  for (std::size_t i = 0; i < std::min(lineas.size(), tamano.filas); ++i) {
    cuadro.lienzo.poner({i, 0}, lineas[i], {});
  }
  return cuadro;
}

std::vector<LineaDeBanda> todaLaBanda(PanelView const& panel, Vista const& vista) {
  auto banda = panel.banda();
  banda.insert(banda.end(), vista.avisos.begin(), vista.avisos.end());
  return banda;
}

Plano planoDelPanel(std::vector<LineaDeBanda> const& banda, Tamano tamano) {
  return planoDe(tamano, lineasDeBanda(banda, tamano.columnas).size());
}

}  // namespace

std::size_t filasALaVista(PanelView const& panel, Vista const& vista, Tamano tamano) {
  if (!cabe(tamano)) return 1;
  return std::max<std::size_t>(1, planoDelPanel(todaLaBanda(panel, vista), tamano).filasALaVista());
}

Cuadro dibujar(PanelView const& panel, Vista const& vista, Tamano tamano) {
  if (!cabe(tamano)) return dibujarQueNoCabe(vista, tamano);
  auto const banda = todaLaBanda(panel, vista);
  auto const plano = planoDelPanel(banda, tamano);
  Cuadro cuadro{.lienzo = Lienzo{tamano}, .cursor = {}, .filaEnLinea = {}};
  cuadro.filaEnLinea.resize(tamano.filas);
  auto& lienzo = cuadro.lienzo;
  auto const numero = cuenta(panel);
  auto const derecha = tamano.columnas - margen - numero.size();
  lienzo.poner({0, derecha}, numero, {.tinta = Tinta::debil});
  cuadro.cursor = dibujarBusqueda(lienzo, vista.busqueda, derecha);
  for (auto const raya : {plano.rayaAlta, plano.rayaBaja}) {
    if (raya) lienzo.llenar(*raya, "─", {.tinta = Tinta::linea});
  }
  dibujarBanda(lienzo, plano, banda);
  if (auto const marcador = panel.marcador()) {
    dibujarMarcador(lienzo, plano, *marcador);
  } else {
    dibujarFilas(cuadro, panel, vista, plano);
  }
  dibujarPie(lienzo, plano.pie, panel, vista);
  return cuadro;
}

}  // namespace zorve::tui
