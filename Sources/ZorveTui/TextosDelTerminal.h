#pragma once

#include <string>
#include <string_view>

#include "ZorveApp/Idioma.h"
#include "ZorveTui/Lienzo.h"

namespace zorve::tui {

/// Texts that only the panel in a terminal has.
namespace TextosDelTerminal {

[[nodiscard]] std::string_view copiar(Idioma idioma);
[[nodiscard]] std::string_view dejar(Idioma idioma);
/// In the footer, where sessions run in the terminal that shows the panel, in a new window of its tmux, or
/// are written to standard output.
[[nodiscard]] std::string_view aqui(Idioma idioma);
[[nodiscard]] std::string_view enVentanaDeTmux(Idioma idioma);
[[nodiscard]] std::string_view seImprime(Idioma idioma);
/// Stands in place of the panel where it does not fit.
[[nodiscard]] std::string noCabe(Idioma idioma, Tamano minimo, Tamano hay);
/// Behind a copy that no terminal confirms.
[[nodiscard]] std::string_view quizaNoSeCopio(Idioma idioma);
/// tmux did not do as it was told; `detalle` is what it said.
[[nodiscard]] std::string tmuxNoQuiso(Idioma idioma, std::string_view detalle);

}  // namespace TextosDelTerminal
}  // namespace zorve::tui
