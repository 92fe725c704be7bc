#include "ZorveTui/TextosDelTerminal.h"

namespace zorve::tui::TextosDelTerminal {

namespace {

std::string_view elegir(Idioma idioma, std::string_view en, std::string_view es) {
  return idioma == Idioma::es ? es : en;
}

std::string medida(Tamano tamano) {
  return std::to_string(tamano.columnas) + "×" + std::to_string(tamano.filas);
}

}  // namespace

std::string_view copiar(Idioma idioma) { return elegir(idioma, "copy id", "copiar id"); }
std::string_view dejar(Idioma idioma) { return elegir(idioma, "leave", "salir"); }
std::string_view aqui(Idioma idioma) { return elegir(idioma, "opens here", "abre aquí"); }
std::string_view enVentanaDeTmux(Idioma idioma) { return elegir(idioma, "opens in tmux", "abre en tmux"); }
std::string_view seImprime(Idioma idioma) { return elegir(idioma, "prints the line", "imprime la línea"); }

std::string noCabe(Idioma idioma, Tamano minimo, Tamano hay) {
  return std::string{elegir(idioma, "Zorve needs ", "Zorve necesita ")} + medida(minimo) +
         std::string{elegir(idioma, "; this is ", "; hay ")} + medida(hay);
}

std::string_view quizaNoSeCopio(Idioma idioma) {
  return elegir(idioma, "This terminal does not say whether it took it; its settings may refuse (OSC 52).",
                "Esta terminal no dice si lo tomó; sus ajustes pueden negarse (OSC 52).");
}

std::string tmuxNoQuiso(Idioma idioma, std::string_view detalle) {
  return std::string{
             elegir(idioma, "tmux could not show the session: ", "tmux no pudo mostrar la sesión: ")} +
         std::string{detalle};
}

}  // namespace zorve::tui::TextosDelTerminal
