#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ZorveApp/PanelView.h"
#include "ZorveTui/Lienzo.h"
#include "ZorveTui/Plano.h"

namespace zorve::tui {

/// `texto` broken between words, and inside one that is longer than a line, into lines of at most `columnas`
/// (at least 2). Safe to print.
[[nodiscard]] std::vector<std::string> enLineas(std::string_view texto, std::size_t columnas);

/// The band's texts broken for a screen that wide.
[[nodiscard]] std::vector<LineaDeBanda> lineasDeBanda(std::span<LineaDeBanda const> banda,
                                                      std::size_t columnas);

/// As many lines as the plan gives the band; where that is not all of them the last one ends in "…".
void dibujarBanda(Lienzo& lienzo, Plano const& plano, std::span<LineaDeBanda const> banda);

}  // namespace zorve::tui
