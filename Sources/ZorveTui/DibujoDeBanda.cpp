#include "ZorveTui/DibujoDeBanda.h"

#include "ZorveCore/Texto/TextoVisible.h"
#include "ZorveTui/Ancho.h"

namespace zorve::tui {

namespace {

constexpr std::size_t columnaDelTexto = 4;
constexpr std::size_t columnaDeLaMarca = 2;

std::size_t anchoDelTexto(std::size_t columnas) { return columnas - columnaDelTexto - columnaDeLaMarca; }

/// Adds a word to the lines, behind the last or on lines of its own.
void agregarPalabra(std::vector<std::string>& lineas, std::string_view palabra, std::size_t columnas) {
  auto const usadas = anchoDe(lineas.back());
  if (!lineas.back().empty() && usadas + 1 + anchoDe(palabra) <= columnas) {
    lineas.back() += ' ';
    lineas.back() += palabra;
    return;
  }
  if (!lineas.back().empty()) lineas.emplace_back();
  while (!palabra.empty()) {
    auto const caracter = sacarCaracter(palabra);
    if (anchoDe(lineas.back()) + anchoDeCaracter(caracter) > columnas) lineas.emplace_back();
    lineas.back() += caracter;
  }
}

}  // namespace

std::vector<std::string> enLineas(std::string_view texto, std::size_t columnas) {
  auto const visible = textoVisible(texto);
  std::vector<std::string> lineas(1);
  for (std::string_view resto = visible; !resto.empty();) {
    auto const blanco = resto.find(' ');
    if (blanco != 0) agregarPalabra(lineas, resto.substr(0, blanco), columnas);
    resto = blanco == std::string_view::npos ? std::string_view{} : resto.substr(blanco + 1);
  }
  return lineas;
}

std::vector<LineaDeBanda> lineasDeBanda(std::span<LineaDeBanda const> banda, std::size_t columnas) {
  std::vector<LineaDeBanda> todas;
  for (auto const& una : banda) {
    for (auto& linea : enLineas(una.texto, anchoDelTexto(columnas))) {
      todas.push_back({una.clase, std::move(linea)});
    }
  }
  return todas;
}

void dibujarBanda(Lienzo& lienzo, Plano const& plano, std::span<LineaDeBanda const> banda) {
  auto const columnas = lienzo.tamano().columnas;
  auto lineas = lineasDeBanda(banda, columnas);
  if (lineas.size() > plano.lineasDeBanda && plano.lineasDeBanda > 0) {
    auto& ultima = lineas[plano.lineasDeBanda - 1].texto;
    ultima = hastaDonde(ultima + " …", anchoDelTexto(columnas));
  }
  for (std::size_t i = 0; i < plano.lineasDeBanda; ++i) {
    auto const tinta = lineas[i].clase == LineaDeBanda::Clase::error ? Tinta::error : Tinta::acento;
    lienzo.poner({plano.banda + i, columnaDeLaMarca}, "▎", {.tinta = tinta});
    lienzo.poner({plano.banda + i, columnaDelTexto}, lineas[i].texto, {.tinta = tinta});
  }
}

}  // namespace zorve::tui
