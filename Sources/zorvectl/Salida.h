#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "zorvectl/Contexto.h"

namespace zorve::ctl {

/// Where standard output goes: the columns that a line may take (nothing: any number), and whether it may be
/// coloured.
struct Pantalla {
  std::optional<std::size_t> columnas;
  bool color = false;
};

/// The terminal's own width, else COLUMNS, which counts for a pipe too. Colour on a terminal only, unless
/// NO_COLOR is set to something or TERM is "dumb".
[[nodiscard]] Pantalla pantallaDeSalida();

/// Writes to standard output and leaves `fallo` and one line on standard error when that cannot be done.
void escribir(Contexto& contexto, std::string_view texto);

/// One line on standard error.
void avisar(std::string_view linea);

/// One line on standard error, and the exit status `codigo`.
void terminarCon(Contexto& contexto, int codigo, std::string_view linea);

}  // namespace zorve::ctl
