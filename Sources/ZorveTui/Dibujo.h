#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "ZorveApp/PanelView.h"
#include "ZorveTui/Lienzo.h"
#include "ZorveTui/Renglon.h"

namespace zorve::tui {

/// What a screen shows beside the panel's own values.
struct Vista {
  Renglon busqueda;
  /// The first row in sight.
  std::size_t primera = 0;
  /// Lines of this face's own, below the panel's.
  std::vector<LineaDeBanda> avisos;
  /// What stands in the footer in place of the terminal; empty: the terminal.
  std::string destino;
  Idioma idioma = Idioma::en;
};

/// The panel as cells. Pure: what the panel says now, at that size. `vista.primera` is a row that the list
/// has. Main thread only.
[[nodiscard]] Cuadro dibujar(PanelView const& panel, Vista const& vista, Tamano tamano);

/// How many rows are seen whole in that size.
[[nodiscard]] std::size_t filasALaVista(PanelView const& panel, Vista const& vista, Tamano tamano);

}  // namespace zorve::tui
