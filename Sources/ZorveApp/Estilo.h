#pragma once

#include <cstdint>

namespace zorve {

/// An sRGB colour; components from 0 to 1, not premultiplied.
struct Color {
  double rojo = 0;
  double verde = 0;
  double azul = 0;
  double opacidad = 1;

  [[nodiscard]] static constexpr Color de8Bits(std::uint8_t rojo, std::uint8_t verde, std::uint8_t azul) {
    return {rojo / 255.0, verde / 255.0, azul / 255.0, 1};
  }
  [[nodiscard]] static constexpr Color blanco(double opacidad) { return {1, 1, 1, opacidad}; }
  [[nodiscard]] constexpr Color con(double otraOpacidad) const { return {rojo, verde, azul, otraOpacidad}; }
  bool operator==(Color const&) const = default;
};

/// A linear gradient from the top edge to the bottom edge.
struct Degradado {
  Color arriba;
  Color abajo;
  bool operator==(Degradado const&) const = default;
};

/// The one dark look. The layers of glass, from back to front: the system's blur, `tinte`, `luzSuperior`.
namespace Estilo {

inline constexpr Color borde = Color::blanco(0.12);
inline constexpr Color bordeSuperior = Color::blanco(0.18);
inline constexpr Color linea = Color::blanco(0.08);
inline constexpr Color lineaFila = Color::blanco(0.04);
inline constexpr Color textoAlto = Color::de8Bits(244, 246, 250);
inline constexpr Color texto = Color::de8Bits(231, 234, 240);
inline constexpr Color textoTenue = Color::de8Bits(138, 147, 166);
inline constexpr Color textoDebil = Color::de8Bits(107, 115, 131);
inline constexpr Color acento = Color::de8Bits(45, 212, 191);
inline constexpr Color ember = Color::de8Bits(232, 169, 76);
inline constexpr Color error = Color::de8Bits(224, 121, 106);
inline constexpr Color filaSeleccionada = acento.con(0.1);
inline constexpr Color tinteBase{0.04847, 0.08596, 0.10525, 1};
inline constexpr Color tinte = tinteBase.con(0.26);
inline constexpr Degradado luzSuperior{Color::blanco(0.1), Color::blanco(0.045)};
inline constexpr Degradado bordeDeLuz{bordeSuperior, borde};

/// Beyond the named colours: outlines and fills that are one of them at an opacity.
inline constexpr Color contornoDeFila = acento.con(0.2);
inline constexpr Color fondoDeError = error.con(0.08);
inline constexpr Color fondoDeAviso = Color::blanco(0.05);
inline constexpr Color fondoDeTecla = Color::blanco(0.07);
inline constexpr Color fondoDeOpcion = Color::blanco(0.04);
inline constexpr Color fondoDeBarraLateral = Color::blanco(0.03);
inline constexpr Color haloDeEstado = ember.con(0.25);
inline constexpr Color aroInactivo = textoDebil.con(0.7);

}  // namespace Estilo

/// Sizes in points, type sizes in points of the interface font (72 to the inch of a screen at scale 1).
namespace Medidas {

struct Tamano {
  double ancho = 0;
  double alto = 0;
};

inline constexpr Tamano panel{440, 560};
inline constexpr double radioDelPanel = 14;
inline constexpr double altoDeBusqueda = 55;
inline constexpr double xDeLupa = 16;
inline constexpr double xDeBusqueda = 44;
inline constexpr double letraDeBusqueda = 14;
inline constexpr double margenDeBanda = 8;
inline constexpr double radioDeBanda = 8;
inline constexpr double letraDeBanda = 11.5;
inline constexpr double altoDeFila = 56;
inline constexpr double xDeEstado = 24;
inline constexpr double xDeTitulo = 44;
inline constexpr double letraDeTitulo = 14;
inline constexpr double letraDeRuta = 11.5;
inline constexpr double letraDerecha = 11;
inline constexpr double margenDerecho = 20;
inline constexpr double sangriaDeSeleccion = 8;
inline constexpr double radioDeSeleccion = 9;
inline constexpr double altoDelPie = 38;
inline constexpr double letraDelPie = 11;
inline constexpr double radioDeTecla = 4;

inline constexpr Tamano ajustes{620, 460};
inline constexpr double anchoDeBarraLateral = 168;
inline constexpr double altoDeSeccion = 32;
inline constexpr double radioDeOpcion = 10;
inline constexpr double altoDeOpcion = 44;
inline constexpr double altoDeOpcionConNota = 56;
inline constexpr double ladoDeMarca = 16;
inline constexpr double letraDeRotulo = 11;
inline constexpr double letraDeOpcion = 13;
inline constexpr double letraDeNota = 11.5;

/// Length of every transition, in seconds; none where the system asks for less motion.
inline constexpr double transicion = 0.12;

}  // namespace Medidas
}  // namespace zorve
