#pragma once

#include <cstddef>

#include "ZorveTui/Dibujo.h"

namespace zorve::tui {

/// The keys that hold here and, at the right, where sessions open. Where not all fits, what people know best
/// goes first.
void dibujarPie(Lienzo& lienzo, std::size_t linea, PanelView const& panel, Vista const& vista);

}  // namespace zorve::tui
