#pragma once

#include <cstddef>
#include <optional>

#include "ZorveTui/Lienzo.h"

namespace zorve::tui {

inline constexpr Tamano tamanoMinimo{40, 8};
/// A session takes two lines.
inline constexpr std::size_t lineasPorFila = 2;

/// Which lines of a screen are whose; the search is the first, the footer the last.
struct Plano {
  std::optional<std::size_t> rayaAlta;
  std::size_t banda = 1;
  std::size_t lineasDeBanda = 0;
  std::size_t lista = 1;
  std::size_t lineasDeLista = 0;
  std::optional<std::size_t> rayaBaja;
  std::size_t pie = 0;

  /// How many rows are seen whole.
  [[nodiscard]] std::size_t filasALaVista() const { return lineasDeLista / lineasPorFila; }
};

[[nodiscard]] constexpr bool cabe(Tamano tamano) {
  return tamano.columnas >= tamanoMinimo.columnas && tamano.filas >= tamanoMinimo.filas;
}

/// For a size that fits; the band has `lineasDeBanda` to show and gets what leaves the list most of the
/// screen.
[[nodiscard]] Plano planoDe(Tamano tamano, std::size_t lineasDeBanda);

/// The first row to show: `primera`, moved as little as keeps `elegida` in sight and no line empty without
/// need.
[[nodiscard]] std::size_t primeraALaVista(std::size_t primera, std::optional<std::size_t> elegida,
                                          std::size_t filas, std::size_t aLaVista);

}  // namespace zorve::tui
