#include "zorvectl/Tabla.h"

#include <algorithm>
#include <numeric>
#include <optional>

#include "ZorveCore/Texto/TextoVisible.h"

namespace zorve::ctl {

namespace {

constexpr std::size_t hueco = 2;
constexpr std::size_t minimoParaCortable = 12;

struct Puesta {
  Columna columna;
  std::size_t ancho = 0;
};
using Puestas = std::vector<Puesta>;

bool esCortable(Puesta const& una) { return una.columna.corte != Corte::nunca; }

std::size_t anchoNatural(Columna const& columna) {
  std::size_t ancho = 0;
  for (auto const& celda : columna.celdas) ancho = std::max(ancho, columnasDe(celda));
  return columna.tope == 0 ? ancho : std::min(ancho, columna.tope);
}

std::size_t huecos(Puestas const& puestas) { return puestas.empty() ? 0 : (puestas.size() - 1) * hueco; }

std::size_t anchoDe(Puestas const& puestas, bool cortables) {
  return std::accumulate(puestas.begin(), puestas.end(), std::size_t{0},
                         [&](std::size_t suma, auto const& una) {
                           return esCortable(una) == cortables ? suma + una.ancho : suma;
                         });
}

std::size_t restoPara(Puestas const& puestas, std::size_t pantalla) {
  auto const fijo = anchoDe(puestas, false) + huecos(puestas);
  return pantalla > fijo ? pantalla - fijo : 0;
}

std::size_t minimoParaCortables(Puestas const& puestas) {
  return static_cast<std::size_t>(std::ranges::count_if(puestas, esCortable)) * minimoParaCortable;
}

void prescindir(Puestas& puestas, std::size_t pantalla) {
  while (restoPara(puestas, pantalla) < std::min(minimoParaCortables(puestas), anchoDe(puestas, true))) {
    auto const una =
        std::ranges::max_element(puestas, {}, [](auto const& puesta) { return puesta.columna.prescindible; });
    if (una == puestas.end() || una->columna.prescindible == 0) return;
    puestas.erase(una);
  }
}

void repartir(Puestas& puestas, std::size_t pantalla) {
  constexpr std::size_t partes = 5;
  constexpr std::size_t partesDelPrimero = 3;
  auto resto = restoPara(puestas, pantalla);
  auto sinRepartir = anchoDe(puestas, true);
  if (sinRepartir <= resto) return;
  for (auto& una : puestas) {
    if (!esCortable(una)) continue;
    auto const losDemas = sinRepartir - una.ancho;
    auto const libre = resto > losDemas ? resto - losDemas : 0;
    auto const parte = losDemas == 0 ? resto : std::max(libre, resto * partesDelPrimero / partes);
    una.ancho = std::min(una.ancho, parte);
    resto -= una.ancho;
    sinRepartir = losDemas;
  }
}

std::string cortada(Columna const& columna, std::string const& celda, std::size_t ancho) {
  return columna.corte == Corte::alPrincipio ? cortadoAlPrincipio(celda, ancho)
                                             : cortadoAlFinal(celda, ancho);
}

std::string_view colorDe(Columna const& columna, std::size_t fila) {
  if (columna.colores.empty()) return {};
  return columna.colores[columna.colores.size() == 1 ? 0 : fila];
}

std::string pintada(std::string const& texto, std::string_view color) {
  if (color.empty() || texto.empty()) return texto;
  return "\x1B[" + std::string{color} + "m" + texto + "\x1B[0m";
}

std::string linea(Puestas const& puestas, std::size_t fila, Pantalla const& pantalla) {
  std::string texto;
  std::size_t pendientes = 0;
  for (auto const& [columna, ancho] : puestas) {
    auto const& entera = columna.celdas[fila];
    auto const celda = pantalla.columnas ? cortada(columna, entera, ancho) : entera;
    auto const ocupa = columnasDe(celda);
    auto const relleno = ancho > ocupa ? ancho - ocupa : 0;
    if (columna.aLaDerecha) pendientes += relleno;
    if (!celda.empty()) {
      texto.append(pendientes, ' ');
      texto += pintada(celda, pantalla.color ? colorDe(columna, fila) : std::string_view{});
      pendientes = 0;
    }
    pendientes += hueco + (columna.aLaDerecha ? 0 : relleno);
  }
  return texto + "\n";
}

}  // namespace

std::string tabla(std::vector<Columna> columnas, Pantalla const& pantalla) {
  Puestas puestas;
  for (auto& columna : columnas) {
    auto const ancho = anchoNatural(columna);
    if (ancho > 0) puestas.push_back({std::move(columna), ancho});
  }
  if (pantalla.columnas) {
    prescindir(puestas, *pantalla.columnas);
    repartir(puestas, *pantalla.columnas);
  }
  std::string texto;
  auto const filas = puestas.empty() ? 0 : puestas.front().columna.celdas.size();
  for (std::size_t fila = 0; fila < filas; ++fila) texto += linea(puestas, fila, pantalla);
  return texto;
}

}  // namespace zorve::ctl
