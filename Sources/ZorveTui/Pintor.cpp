#include "ZorveTui/Pintor.h"

#include <algorithm>

#include "ZorveTui/Ancho.h"

namespace zorve::tui {

namespace {

constexpr std::string_view empieza = "\x1B[?2026h";
constexpr std::string_view termina = "\x1B[?2026l";
constexpr std::string_view esconderCursor = "\x1B[?25l";
constexpr std::string_view mostrarCursor = "\x1B[?25h";
constexpr std::string_view limpiar = "\x1B[0m\x1B[H\x1B[2J";
constexpr std::string_view borrarHastaElFin = "\x1B[K";
/// A gap of unchanged cells that is shorter is written again: moving over it takes as many bytes.
constexpr std::size_t huecoQueSeReescribe = 6;

bool esVacia(Celda const& celda) { return celda.texto == " " && !celda.trazo.seleccion; }

/// The column behind the last cell that shows something.
std::size_t finDe(Lienzo const& lienzo, std::size_t fila) {
  auto fin = lienzo.tamano().columnas;
  while (fin > 0 && esVacia(lienzo.celda(fila, fin - 1))) --fin;
  return fin;
}

}  // namespace

void Pintor::ponerPaleta(Paleta const& paleta) {
  if (paleta == paleta_) return;
  paleta_ = paleta;
  olvidar();
}

void Pintor::mover(std::string& destino, Posicion donde) {
  if (pluma_ == donde) return;
  destino += "\x1B[" + std::to_string(donde.fila + 1) + ";" + std::to_string(donde.columna + 1) + "H";
  pluma_ = donde;
}

void Pintor::trazar(std::string& destino, Trazo const& trazo) {
  if (trazo_ == trazo) return;
  destino += paleta_.secuencia(trazo);
  trazo_ = trazo;
}

void Pintor::anotarLinea(std::vector<Tramo>& tramos, Lienzo const& lienzo, std::size_t fila) const {
  auto const columnas = lienzo.tamano().columnas;
  auto const fin = finDe(lienzo, fila);
  auto const difiere = [&](std::size_t columna) {
    return lienzo.celda(fila, columna) != ultimo_.lienzo.celda(fila, columna);
  };
  auto const agregar = [&](std::size_t columna) {
    auto const& celda = lienzo.celda(fila, columna);
    Posicion const aqui{fila, columna};
    bool const sigue = !tramos.empty() && tramos.back().hasta == aqui && tramos.back().trazo == celda.trazo;
    if (!sigue) tramos.push_back({.desde = aqui, .trazo = celda.trazo, .texto = {}, .hasta = {}});
    tramos.back().texto += celda.texto;
    // Where terminals disagree about the width, and at the edge, only a move says where the cursor is.
    bool const seSabe = !anchoDudoso(celda.texto) && columna + 1 < columnas;
    tramos.back().hasta = seSabe ? std::optional{Posicion{fila, columna + celda.ancho}} : std::nullopt;
  };
  auto const seReescribe = [&](std::size_t desde, std::size_t hasta) {
    if (tramos.empty() || tramos.back().hasta != Posicion{fila, desde} ||
        hasta - desde > huecoQueSeReescribe) {
      return false;
    }
    for (auto i = desde; i < hasta; ++i) {
      auto const& celda = lienzo.celda(fila, i);
      if (celda.ancho != 1 || anchoDudoso(celda.texto) || celda.trazo != tramos.back().trazo) return false;
    }
    return true;
  };
  std::size_t hueco = 0;
  for (std::size_t columna = 0; columna < fin; ++columna) {
    if (!difiere(columna) || lienzo.celda(fila, columna).ancho == 0) continue;
    if (seReescribe(hueco, columna)) {
      for (; hueco < columna; ++hueco) agregar(hueco);
    }
    agregar(columna);
    hueco = columna + 1;
  }
  bool sobra = false;
  for (auto columna = fin; columna < columnas; ++columna) sobra = sobra || difiere(columna);
  if (sobra) tramos.push_back({{fila, fin}, {}, std::string{borrarHastaElFin}, {}});
}

void Pintor::escribir(std::string& destino, std::vector<Tramo>& tramos) {
  std::vector<Trazo> turnos;
  for (auto const& tramo : tramos) {
    if (std::ranges::find(turnos, tramo.trazo) == turnos.end()) turnos.push_back(tramo.trazo);
  }
  for (auto const& turno : turnos) {
    for (auto const& tramo : tramos) {
      if (tramo.trazo != turno) continue;
      mover(destino, tramo.desde);
      trazar(destino, tramo.trazo);
      destino += tramo.texto;
      pluma_ = tramo.hasta;
    }
  }
}

std::string Pintor::pintar(Cuadro const& cuadro) {
  bool const entero = !conocido_ || ultimo_.lienzo.tamano() != cuadro.lienzo.tamano();
  if (entero) ultimo_ = {.lienzo = Lienzo{cuadro.lienzo.tamano()}, .cursor = {}, .filaEnLinea = {}};
  std::string cuerpo{entero ? limpiar : std::string_view{}};
  pluma_.reset();
  trazo_ = entero ? std::nullopt : std::optional{Trazo{}};
  std::vector<Tramo> tramos;
  for (std::size_t fila = 0; fila < cuadro.lienzo.tamano().filas; ++fila) {
    anotarLinea(tramos, cuadro.lienzo, fila);
  }
  escribir(cuerpo, tramos);
  bool const quieto = !entero && cuerpo.empty() && cuadro.cursor == ultimo_.cursor;
  ultimo_ = cuadro;
  conocido_ = true;
  if (quieto) return {};
  trazar(cuerpo, {});
  if (cuadro.cursor) mover(cuerpo, *cuadro.cursor);
  std::string todo{sincronia_ ? empieza : std::string_view{}};
  todo += esconderCursor;
  todo += cuerpo;
  if (cuadro.cursor) todo += mostrarCursor;
  if (sincronia_) todo += termina;
  return todo;
}

}  // namespace zorve::tui
