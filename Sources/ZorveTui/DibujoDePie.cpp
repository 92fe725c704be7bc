#include "ZorveTui/DibujoDePie.h"

#include <algorithm>
#include <string_view>

#include "ZorveCore/Texto/TextoVisible.h"
#include "ZorveTui/Ancho.h"
#include "ZorveTui/TextosDelTerminal.h"

namespace zorve::tui {

namespace {

constexpr std::size_t margen = 2;
constexpr std::size_t hueco = 2;
constexpr std::size_t minimoDelDestino = 8;

struct Entrada {
  std::string tecla;
  std::string_view palabra;
  /// The entry with the highest goes first where there is no room.
  int prescindible = 0;

  [[nodiscard]] std::size_t ancho() const { return anchoDe(tecla) + 1 + anchoDe(palabra); }
};
using Entradas = std::vector<Entrada>;

Entradas entradas(PanelView const& panel, Idioma idioma) {
  auto const [mover, abrir, refrescar] = panel.leyenda();
  return {{mover.tecla, mover.palabra, 4},
          {abrir.tecla, abrir.palabra, 1},
          {refrescar.tecla, refrescar.palabra, 3},
          {"^Y", TextosDelTerminal::copiar(idioma), 2},
          {"esc", TextosDelTerminal::dejar(idioma), 0}};
}

std::size_t anchoDe(Entradas const& todas) {
  std::size_t suma = 0;
  for (auto const& una : todas) suma += una.ancho() + hueco;
  return suma == 0 ? 0 : suma - hueco;
}

void quitarLoQueNoCabe(Entradas& todas, std::size_t columnas) {
  while (todas.size() > 1 && anchoDe(todas) > columnas) {
    todas.erase(std::ranges::max_element(todas, {}, &Entrada::prescindible));
  }
}

}  // namespace

void dibujarPie(Lienzo& lienzo, std::size_t linea, PanelView const& panel, Vista const& vista) {
  auto todas = entradas(panel, vista.idioma);
  auto const columnas = lienzo.tamano().columnas - 2 * margen;
  quitarLoQueNoCabe(todas, columnas);
  auto columna = margen;
  for (auto const& [tecla, palabra, _] : todas) {
    columna = lienzo.poner({linea, columna}, tecla, {.tinta = Tinta::acento});
    columna = lienzo.poner({linea, columna + 1}, palabra, {.tinta = Tinta::tenue}) + hueco;
  }
  auto const libres = columnas + margen > columna ? columnas + margen - columna : 0;
  auto const destino = textoVisible(vista.destino.empty() ? panel.terminal() : vista.destino);
  if (libres < minimoDelDestino && zorve::tui::anchoDe(std::string_view{destino}) > libres) return;
  auto const cabido = hastaDonde(destino, libres);
  lienzo.poner({linea, columnas + margen - zorve::tui::anchoDe(std::string_view{cabido})}, cabido,
               {.tinta = Tinta::debil});
}

}  // namespace zorve::tui
