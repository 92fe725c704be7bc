#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "zorvectl/Salida.h"

namespace zorve::ctl {

/// Where a column's text is cut when it does not fit.
enum class Corte : unsigned char { nunca, alFinal, alPrincipio };

/// One column: safe texts, a cell a row. `tope` bounds how far other rows are padded to a long cell.
struct Columna {
  std::vector<std::string> celdas;
  Corte corte = Corte::nunca;
  bool aLaDerecha = false;
  std::size_t tope = 0;
  /// Columns with the highest number go first where the screen is too narrow; 0 stays always.
  int prescindible = 0;
  /// The SGR numbers of each cell ("1;33"), empty for none; one for all rows or one a row.
  std::vector<std::string_view> colores;
};

/// The rows as lines, two blanks between columns, no blanks at their ends, none wider than the screen.
/// Columns without any text are left out. Of the columns that may be cut, the first gets the most room.
[[nodiscard]] std::string tabla(std::vector<Columna> columnas, Pantalla const& pantalla);

}  // namespace zorve::ctl
