#include "ZorveTui/Paleta.h"

#include <gtest/gtest.h>

#include <array>

namespace zorve::tui {
namespace {

constexpr std::array tintas{Tinta::texto,  Tinta::alto,  Tinta::tenue, Tinta::debil,
                            Tinta::acento, Tinta::ember, Tinta::error};
constexpr Color negro{0, 0, 0, 1};
constexpr Color blanco{1, 1, 1, 1};

TEST(Paleta, laProfundidadSigueALoQueElEntornoDice) {
  using enum Profundidad;
  EXPECT_EQ(profundidadDe({.colores = 256}), doscientosCincuentaYSeis);
  EXPECT_EQ(profundidadDe({.colores = 8}), dieciseis);
  EXPECT_EQ(profundidadDe({.colores = 16}), dieciseis);
  EXPECT_EQ(profundidadDe({.colores = -1}), ninguna);
  EXPECT_EQ(profundidadDe({.colorTerm = "truecolor", .colores = 256}), directa);
  EXPECT_EQ(profundidadDe({.colorTerm = "24bit", .colores = 8}), directa);
  EXPECT_EQ(profundidadDe({.colores = 1 << 24}), directa);
  EXPECT_EQ(profundidadDe({.noColor = "1", .colorTerm = "truecolor", .colores = 256}), ninguna);
}

TEST(Paleta, enVeinticuatroBitsSobreNegroSonLosColoresDelEstilo) {
  Paleta const paleta{Profundidad::directa, negro};
  EXPECT_EQ(paleta.secuencia({.tinta = Tinta::acento}), "\x1B[0;38;2;45;212;191m");
  EXPECT_EQ(paleta.secuencia({.tinta = Tinta::ember, .negrita = true}), "\x1B[0;1;38;2;232;169;76m");
}

TEST(Paleta, todoTextoSeLeeSobreCualquierFondoConocido) {
  for (int gris = 0; gris <= 10; ++gris) {
    Color const fondo{gris / 10.0, gris / 10.0, gris / 10.0, 1};
    for (auto const tinta : tintas) {
      EXPECT_GE(contraste(Paleta(Profundidad::directa, fondo).color(tinta), fondo), 4.5)
          << gris << " " << static_cast<int>(tinta);
    }
  }
}

TEST(Paleta, sinConocerElFondoSeLeeSobreNegroYSobreBlanco) {
  Paleta const paleta{Profundidad::directa, {}};
  for (auto const tinta : {Tinta::tenue, Tinta::debil, Tinta::acento, Tinta::ember, Tinta::error}) {
    EXPECT_GE(contraste(paleta.color(tinta), negro), 4.4);
    EXPECT_GE(contraste(paleta.color(tinta), blanco), 4.4);
  }
  EXPECT_EQ(paleta.secuencia({.tinta = Tinta::alto, .negrita = true}), "\x1B[0;1m");
}

TEST(Paleta, sinColoresNoSeMandaNinguno) {
  Paleta const paleta{Profundidad::ninguna, negro};
  EXPECT_EQ(paleta.secuencia({.tinta = Tinta::ember, .seleccion = true, .negrita = true}), "\x1B[0;1m");
  EXPECT_EQ(paleta.secuencia({.tinta = Tinta::tenue}), "\x1B[0;2m");
}

TEST(Paleta, enDieciseisColoresElAmarilloYElCianSoloVanSobreOscuro) {
  EXPECT_EQ(Paleta(Profundidad::dieciseis, negro).secuencia({.tinta = Tinta::ember}), "\x1B[0;33m");
  EXPECT_EQ(Paleta(Profundidad::dieciseis, blanco).secuencia({.tinta = Tinta::ember}), "\x1B[0;1m");
  EXPECT_EQ(Paleta(Profundidad::dieciseis, {}).secuencia({.tinta = Tinta::acento}), "\x1B[0;1m");
}

TEST(Paleta, laSeleccionEsElAcentoSobreElFondoQueHay) {
  EXPECT_EQ(Paleta(Profundidad::directa, blanco).secuencia({.seleccion = true}),
            "\x1B[0;38;2;12;22;27;48;2;234;251;249m");
}

TEST(Paleta, losColoresFijosSeBuscanPorCercania) {
  EXPECT_EQ(masCercano(negro), 16);
  EXPECT_EQ(masCercano(blanco), 231);
  EXPECT_EQ(masCercano(Color::de8Bits(8, 8, 8)), 232);
  EXPECT_EQ(masCercano(Color::de8Bits(95, 135, 175)), 67);
}

TEST(Paleta, elFondoSeLeeDeLaRespuestaYDelEntorno) {
  EXPECT_EQ(fondoDeRespuesta("rgb:ffff/0000/8080"), (Color{1, 0, 0x8080 / 65535.0, 1}));
  EXPECT_EQ(fondoDeRespuesta("rgb:f/0/f"), (Color{1, 0, 1, 1}));
  EXPECT_EQ(fondoDeRespuesta("rgba:ff/00/ff/ff"), (Color{1, 0, 1, 1}));
  for (auto const* otra : {"", "rgb:", "rgb:ff/00", "rgb:xx/00/00", "#ffffff", "rgb:fffff/0/0"}) {
    EXPECT_EQ(fondoDeRespuesta(otra), std::nullopt) << otra;
  }
  EXPECT_EQ(fondoDelEntorno("0;15"), blanco);
  EXPECT_EQ(fondoDelEntorno("15;default;0"), negro);
  EXPECT_EQ(fondoDelEntorno("15"), std::nullopt);
  EXPECT_EQ(fondoDelEntorno("0;default"), std::nullopt);
}

}  // namespace
}  // namespace zorve::tui
