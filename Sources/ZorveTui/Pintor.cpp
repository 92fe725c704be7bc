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

void Pintor::pintarLinea(std::string& destino, Lienzo const& lienzo, std::size_t fila) {
  auto const columnas = lienzo.tamano().columnas;
  auto const fin = finDe(lienzo, fila);
  auto const difiere = [&](std::size_t columna) {
    return lienzo.celda(fila, columna) != ultimo_.lienzo.celda(fila, columna);
  };
  std::size_t columna = 0;
  while (columna < fin) {
    auto const& celda = lienzo.celda(fila, columna);
    bool const cerca = pluma_ && pluma_->fila == fila && pluma_->columna <= columna &&
                       columna - pluma_->columna < huecoQueSeReescribe;
    if (!difiere(columna) || celda.ancho == 0) {
      ++columna;
      continue;
    }
    auto desde = cerca ? pluma_->columna : columna;
    for (; desde <= columna; desde += std::max<std::size_t>(1, lienzo.celda(fila, desde).ancho)) {
      auto const& una = lienzo.celda(fila, desde);
      mover(destino, {fila, desde});
      trazar(destino, una.trazo);
      destino += una.texto;
      pluma_ = Posicion{fila, desde + una.ancho};
      // Where terminals disagree about the width, and at the edge, only a move says where the cursor is.
      if (anchoDudoso(una.texto) || pluma_->columna >= columnas) pluma_.reset();
    }
    columna = desde;
  }
  for (columna = fin; columna < columnas && !difiere(columna);) ++columna;
  if (columna == columnas) return;
  mover(destino, {fila, fin});
  trazar(destino, {});
  destino += borrarHastaElFin;
}

std::string Pintor::pintar(Cuadro const& cuadro) {
  bool const entero = !conocido_ || ultimo_.lienzo.tamano() != cuadro.lienzo.tamano();
  if (entero) ultimo_ = {.lienzo = Lienzo{cuadro.lienzo.tamano()}, .cursor = {}, .filaEnLinea = {}};
  std::string cuerpo{entero ? limpiar : std::string_view{}};
  pluma_.reset();
  trazo_ = entero ? std::nullopt : std::optional{Trazo{}};
  for (std::size_t fila = 0; fila < cuadro.lienzo.tamano().filas; ++fila) {
    pintarLinea(cuerpo, cuadro.lienzo, fila);
  }
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
