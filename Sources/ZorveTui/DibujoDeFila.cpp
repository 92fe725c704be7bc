#include "ZorveTui/DibujoDeFila.h"

#include <string_view>

#include "ZorveCore/Texto/TextoVisible.h"
#include "ZorveTui/Ancho.h"

namespace zorve::tui {

namespace {

constexpr std::size_t columnaDeEstado = 2;
constexpr std::size_t columnaDeTexto = 4;
constexpr std::size_t margenDerecho = 2;
constexpr std::size_t hueco = 2;

struct Marca {
  std::string_view dibujo;
  Tinta tinta = Tinta::debil;
};

Marca marcaDe(LiveState estado) {
  if (estado == LiveState::busy) return {"●", Tinta::ember};
  return estado == LiveState::idle ? Marca{"○", Tinta::ember} : Marca{"·", Tinta::debil};
}

/// Text at the right edge; gives the column before which the left side ends.
std::size_t aLaDerecha(Lienzo& lienzo, std::size_t linea, std::string_view texto, Trazo const& trazo) {
  auto const columnas = lienzo.tamano().columnas - margenDerecho;
  if (texto.empty()) return columnas;
  auto const desde = columnas - anchoDe(texto);
  lienzo.poner({linea, desde}, texto, trazo);
  return desde - hueco;
}

void dibujarRuta(Lienzo& lienzo, std::size_t linea, Fila const& fila, std::size_t hasta) {
  auto const cola = fila.palabraDeEstado ? " · " + *fila.palabraDeEstado : std::string{};
  auto const libres = hasta - columnaDeTexto;
  auto const ruta = desdeDonde(textoVisible(fila.ruta), libres - anchoDe(cola));
  Trazo const tenue{.tinta = Tinta::tenue, .seleccion = fila.seleccionada};
  auto columna = lienzo.poner({linea, columnaDeTexto}, ruta, tenue);
  if (!fila.palabraDeEstado) return;
  columna = lienzo.poner({linea, columna}, " · ", tenue);
  lienzo.poner({linea, columna}, *fila.palabraDeEstado,
               {.tinta = Tinta::ember, .seleccion = fila.seleccionada});
}

}  // namespace

void dibujarFila(Lienzo& lienzo, std::size_t linea, Fila const& fila) {
  bool const elegida = fila.seleccionada;
  for (auto const cual : {linea, linea + 1}) {
    lienzo.llenar(cual, " ", {.seleccion = elegida});
    if (elegida) lienzo.poner({cual, 0}, "▌", {.tinta = Tinta::acento, .seleccion = true});
  }
  auto const [dibujo, tinta] = marcaDe(fila.estado);
  lienzo.poner({linea, columnaDeEstado}, dibujo, {.tinta = tinta, .seleccion = elegida});
  Trazo const aparte{.tinta = Tinta::debil, .seleccion = elegida};
  auto const hasta = aLaDerecha(lienzo, linea, fila.tiempo, aparte);
  lienzo.poner({linea, columnaDeTexto}, hastaDonde(textoVisible(fila.titulo), hasta - columnaDeTexto),
               {.tinta = elegida ? Tinta::alto : Tinta::texto,
                .seleccion = elegida,
                .negrita = elegida,
                .cursiva = fila.ayuda.has_value()});
  dibujarRuta(lienzo, linea + 1, fila, aLaDerecha(lienzo, linea + 1, fila.conteo.value_or(""), aparte));
}

}  // namespace zorve::tui
