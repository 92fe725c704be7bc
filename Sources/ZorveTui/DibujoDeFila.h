#pragma once

#include <cstddef>

#include "ZorveApp/PanelView.h"
#include "ZorveTui/Lienzo.h"

namespace zorve::tui {

/// One session on the lines `linea` and the one below it: live state, title and time; directory, live word
/// and number of prompts.
void dibujarFila(Lienzo& lienzo, std::size_t linea, Fila const& fila);

}  // namespace zorve::tui
