#include "ZorveApp/Qt/Dibujo/FondoDeVidrio.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "ZorveApp/Estilo.h"

namespace zorve {

namespace {

/// What the dark blur of a desktop comes to, on the average.
constexpr Color base = Color::de8Bits(3, 7, 9);

/// Bayer's matrix: each of 64 thresholds once, neighbours far apart.
constexpr std::array<std::array<std::uint8_t, 8>, 8> umbrales{
    std::array<std::uint8_t, 8>{0, 32, 8, 40, 2, 34, 10, 42},
    std::array<std::uint8_t, 8>{48, 16, 56, 24, 50, 18, 58, 26},
    std::array<std::uint8_t, 8>{12, 44, 4, 36, 14, 46, 6, 38},
    std::array<std::uint8_t, 8>{60, 28, 52, 20, 62, 30, 54, 22},
    std::array<std::uint8_t, 8>{3, 35, 11, 43, 1, 33, 9, 41},
    std::array<std::uint8_t, 8>{51, 19, 59, 27, 49, 17, 57, 25},
    std::array<std::uint8_t, 8>{15, 47, 7, 39, 13, 45, 5, 37},
    std::array<std::uint8_t, 8>{63, 31, 55, 23, 61, 29, 53, 21}};

/// `encima` over `debajo`; both and the result premultiplied.
Color sobre(Color debajo, Color encima) {
  auto const resto = 1 - encima.opacidad;
  return {encima.rojo + debajo.rojo * resto, encima.verde + debajo.verde * resto,
          encima.azul + debajo.azul * resto, encima.opacidad + debajo.opacidad * resto};
}

Color multiplicado(Color c) {
  return {c.rojo * c.opacidad, c.verde * c.opacidad, c.azul * c.opacidad, c.opacidad};
}

/// The light's colours are white: their opacity is all that changes.
Color luzEn(double parte) {
  auto const& [arriba, abajo] = Estilo::luzSuperior;
  return arriba.con(arriba.opacidad + (abajo.opacidad - arriba.opacidad) * parte);
}

Color enLaFila(double parte, double densidad) {
  auto const tintado = sobre(multiplicado(base.con(densidad)), multiplicado(Estilo::tinte));
  return sobre(tintado, multiplicado(luzEn(parte)));
}

int aNivel(double valor, double umbral) { return std::min(255, static_cast<int>(valor * 255 + umbral)); }

}  // namespace

QImage fondoDeVidrio(int alto, double densidad) {
  QImage tira{static_cast<int>(umbrales.size()), std::max(1, alto), QImage::Format_ARGB32_Premultiplied};
  for (int y = 0; y < tira.height(); ++y) {
    auto const color = enLaFila((y + 0.5) / tira.height(), densidad);
    auto const opacidad = aNivel(color.opacidad, 0.5);
    int x = 0;
    for (auto const orden : umbrales.at(static_cast<std::size_t>(y) % umbrales.size())) {
      auto const umbral = (orden + 0.5) / 64;
      auto const nivel = [&](double valor) { return std::min(opacidad, aNivel(valor, umbral)); };
      tira.setPixel(x++, y, qRgba(nivel(color.rojo), nivel(color.verde), nivel(color.azul), opacidad));
    }
  }
  return tira;
}

}  // namespace zorve
