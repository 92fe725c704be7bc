#include "ZorveTui/Renglon.h"

#include <utility>

#include "ZorveCore/Texto/Texto.h"
#include "ZorveTui/Ancho.h"

namespace zorve::tui {

namespace {

constexpr char suprimir = 0x7F;

bool esSalto(char letra) { return letra == '\n' || letra == '\r' || letra == '\t'; }
bool esControl(char letra) { return static_cast<unsigned char>(letra) < ' ' || letra == suprimir; }

}  // namespace

void Renglon::poner(std::string texto) {
  texto_ = std::move(texto);
  alFinal();
}

void Renglon::escribir(std::string_view texto) {
  std::string limpio;
  for (char const letra : texto) {
    if (esSalto(letra)) {
      limpio += ' ';
    } else if (!esControl(letra)) {
      limpio += letra;
    }
  }
  limpio = conUtf8Valido(limpio);
  texto_.insert(caret_, limpio);
  caret_ += limpio.size();
}

std::size_t Renglon::anterior() const {
  std::size_t inicio = 0;
  for (auto resto = antes(); !resto.empty();) {
    auto const caracter = sacarCaracter(resto);
    if (resto.empty()) return inicio;
    inicio += caracter.size();
  }
  return 0;
}

void Renglon::izquierda() { caret_ = anterior(); }

void Renglon::derecha() {
  auto resto = despues();
  if (!resto.empty()) caret_ += sacarCaracter(resto).size();
}

void Renglon::borrarAtras() {
  auto const inicio = anterior();
  texto_.erase(inicio, caret_ - inicio);
  caret_ = inicio;
}

void Renglon::borrarAdelante() {
  auto resto = despues();
  if (!resto.empty()) texto_.erase(caret_, sacarCaracter(resto).size());
}

void Renglon::borrarPalabra() {
  auto const hay = antes();
  auto const fin = hay.find_last_not_of(' ');
  auto const blanco = fin == std::string_view::npos ? fin : hay.find_last_of(' ', fin);
  auto const inicio = blanco == std::string_view::npos ? 0 : blanco + 1;
  texto_.erase(inicio, caret_ - inicio);
  caret_ = inicio;
}

void Renglon::borrarTodo() { poner({}); }

}  // namespace zorve::tui
