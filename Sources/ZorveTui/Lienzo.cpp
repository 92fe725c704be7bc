#include "ZorveTui/Lienzo.h"

#include "ZorveTui/Ancho.h"

namespace zorve::tui {

std::size_t Lienzo::poner(Posicion donde, std::string_view texto, Trazo const& trazo) {
  if (donde.fila >= tamano_.filas) return donde.columna;
  auto columna = donde.columna;
  while (!texto.empty()) {
    auto const caracter = sacarCaracter(texto);
    auto const ancho = anchoDeCaracter(caracter);
    if (columna + ancho > tamano_.columnas) break;
    if (ancho == 0) {
      unir(donde.fila, columna, caracter);
      continue;
    }
    auto* const celda = &celdas_[donde.fila * tamano_.columnas + columna];
    *celda = {.texto = std::string{caracter}, .ancho = ancho, .trazo = trazo};
    if (ancho > 1) celda[1] = {.texto = "", .ancho = 0, .trazo = trazo};
    columna += ancho;
  }
  return columna;
}

/// A mark without a column of its own belongs to the character before it.
void Lienzo::unir(std::size_t fila, std::size_t columna, std::string_view caracter) {
  while (columna > 0) {
    auto& anterior = celdas_[fila * tamano_.columnas + --columna];
    if (anterior.ancho == 0) continue;
    anterior.texto += caracter;
    return;
  }
}

void Lienzo::llenar(std::size_t fila, std::string_view caracter, Trazo const& trazo) {
  for (std::size_t columna = 0; columna < tamano_.columnas;) {
    columna = poner({fila, columna}, caracter, trazo);
  }
}

std::string Lienzo::linea(std::size_t fila) const {
  std::string todo;
  for (std::size_t columna = 0; columna < tamano_.columnas; ++columna) todo += celda(fila, columna).texto;
  todo.erase(todo.find_last_not_of(' ') + 1);
  return todo;
}

}  // namespace zorve::tui
