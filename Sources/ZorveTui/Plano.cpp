#include "ZorveTui/Plano.h"

#include <algorithm>

namespace zorve::tui {

namespace {

constexpr std::size_t altoConRayas = 10;
constexpr std::size_t parteDeLaBanda = 3;

}  // namespace

Plano planoDe(Tamano tamano, std::size_t lineasDeBanda) {
  bool const rayas = tamano.filas >= altoConRayas;
  Plano plano;
  plano.pie = tamano.filas - 1;
  std::size_t const arriba = rayas ? 2 : 1;
  std::size_t const abajo = rayas ? 2 : 1;
  auto const libres = tamano.filas - arriba - abajo;
  if (rayas) {
    plano.rayaAlta = 1;
    plano.rayaBaja = plano.pie - 1;
  }
  plano.banda = arriba;
  plano.lineasDeBanda = std::min(lineasDeBanda, std::max<std::size_t>(libres / parteDeLaBanda, 2));
  plano.lista = arriba + plano.lineasDeBanda;
  plano.lineasDeLista = libres - plano.lineasDeBanda;
  return plano;
}

std::size_t primeraALaVista(std::size_t primera, std::optional<std::size_t> elegida, std::size_t filas,
                            std::size_t aLaVista) {
  if (elegida && *elegida < primera) primera = *elegida;
  if (elegida && *elegida >= primera + aLaVista) primera = *elegida + 1 - aLaVista;
  return std::min(primera, filas > aLaVista ? filas - aLaVista : 0);
}

}  // namespace zorve::tui
