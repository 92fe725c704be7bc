#include "ZorveApp/Qt/Bandeja/IconoDeBarra.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QFile>

#include "ZorveApp/Qt/Dibujo/MarcaQt.h"

namespace zorve {
namespace {

int medios(QImage const& imagen, QRect const& donde) {
  int todos = 0;
  for (int y = donde.top(); y <= donde.bottom(); ++y) {
    for (int x = donde.left(); x <= donde.right(); ++x) {
      auto const opacidad = qAlpha(imagen.pixel(x, y));
      todos += opacidad > 0 && opacidad < 255 ? 1 : 0;
    }
  }
  return todos;
}

QByteArray leer(QString const& ruta) {
  QFile archivo{ruta};
  return archivo.open(QIODevice::ReadOnly) ? archivo.readAll() : QByteArray{};
}

class MarcaNitida : public testing::TestWithParam<std::pair<int, int>> {};

/// The middle of a line, away from its rounded ends: its upper and lower edges fall on whole pixels.
TEST_P(MarcaNitida, susLineasNoTienenBordesGrises) {
  auto const [lado, veces] = GetParam();
  auto const margen = (lado - 18 * veces) / 2;
  auto const imagen = imagenDeMarca(lado, Qt::black);
  EXPECT_EQ(imagen.width(), lado);
  EXPECT_EQ(medios(imagen, {margen + 12 * veces, margen, 2 * veces, 9 * veces}), 0);
  EXPECT_EQ(qAlpha(imagen.pixel(margen + 13 * veces, margen + 4 * veces)), 255);
}

INSTANTIATE_TEST_SUITE_P(Lados, MarcaNitida,
                         testing::Values(std::pair{18, 1}, std::pair{22, 1}, std::pair{24, 1},
                                         std::pair{32, 1}, std::pair{36, 2}, std::pair{44, 2},
                                         std::pair{48, 2}));

TEST(Marca, dondeNoCabeEnteraLlenaLoQueHay) {
  EXPECT_GT(qAlpha(imagenDeMarca(16, Qt::black).pixel(3, 4)), 200);
}

TEST(IconoDeLaAplicacion, esElDibujoInstaladoEnCadaTamano) {
  auto const icono = iconoDeLaAplicacion();
  for (int const lado : {16, 22, 24, 32, 48, 64, 128, 256}) {
    auto const imagen = icono.pixmap(lado).toImage();
    EXPECT_EQ(imagen.width(), lado);
    EXPECT_EQ(qAlpha(imagen.pixel(0, 0)), 0) << lado;
    EXPECT_EQ(qAlpha(imagen.pixel(lado / 2, lado / 8 + 1)), 255) << lado;
  }
}

TEST(IconoDeLaAplicacion, losTamanosSonDelDibujoDeHoy) {
  auto const dibujo = leer(QStringLiteral(ZORVE_ICONOS "/zorve.svg"));
  auto const huella = QCryptographicHash::hash(dibujo, QCryptographicHash::Sha256).toHex();
  EXPECT_TRUE(leer(QStringLiteral(ZORVE_ICONOS "/Linux/iconos/sha256")).startsWith(huella))
      << "run Packaging/Linux/iconos.sh";
}

}  // namespace
}  // namespace zorve
