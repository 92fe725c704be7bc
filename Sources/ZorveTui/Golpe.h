#pragma once

#include <cstddef>
#include <cstdint>
#include <variant>

namespace zorve::tui {

/// Keys that a terminal sends as a sequence, as its description names them.
enum class TeclaDeTerminal : std::uint8_t {
  arriba,
  abajo,
  izquierda,
  derecha,
  inicio,
  fin,
  controlInicio,
  controlFin,
  paginaArriba,
  paginaAbajo,
  retorno,
  borrarAtras,
  borrarAdelante,
  empiezaPegado,
  terminaPegado,
  otra,
};

/// Cells count from 0.
struct Raton {
  enum class Gesto : std::uint8_t { clic, ruedaArriba, ruedaAbajo };
  Gesto gesto = Gesto::clic;
  std::size_t fila = 0;
  std::size_t columna = 0;
  bool operator==(Raton const&) const = default;
};

/// One thing that a terminal sent: a byte, or a sequence that was recognised.
using Golpe = std::variant<unsigned char, TeclaDeTerminal, Raton>;

}  // namespace zorve::tui
