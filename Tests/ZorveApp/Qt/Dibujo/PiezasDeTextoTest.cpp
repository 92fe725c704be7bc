#include "ZorveApp/Qt/Dibujo/PiezasDeTexto.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QFontMetricsF>

namespace zorve {
namespace {

constexpr double ancho = 200;

class PiezasDeTextoTest : public testing::Test {
 protected:
  PiezasDeTextoTest() { letra.setPixelSize(14); }

  [[nodiscard]] QVariantList piezas(QString const& texto, QVariantList const& marcas,
                                    Qt::TextElideMode elision = Qt::ElideNone) const {
    return PiezasDeTexto::de(texto, letra, ancho, elision, marcas)[QStringLiteral("piezas")].toList();
  }
  static bool marcada(QVariant const& pieza) { return pieza.toMap()[QStringLiteral("marcada")].toBool(); }
  static double x(QVariant const& pieza) { return pieza.toMap()[QStringLiteral("x")].toDouble(); }
  static double fin(QVariant const& pieza) {
    return x(pieza) + pieza.toMap()[QStringLiteral("ancho")].toDouble();
  }
  [[nodiscard]] double hasta(QString const& principio) const {
    return QFontMetricsF{letra}.horizontalAdvance(principio);
  }

  QFont letra = QFontDatabase::systemFont(QFontDatabase::FixedFont);
};

TEST_F(PiezasDeTextoTest, lasPiezasCubrenElRenglonSinHuecos) {
  auto const todas = piezas(QStringLiteral("un parser y otro parser"), {3, 9, 17, 23});
  ASSERT_EQ(todas.size(), 5);
  for (int i = 1; i < 5; ++i) EXPECT_DOUBLE_EQ(fin(todas[i - 1]), x(todas[i])) << i;
  for (int i = 0; i < 5; ++i) EXPECT_EQ(marcada(todas[i]), i % 2 == 1) << i;
  EXPECT_LT(x(todas[0]), 0);
}

TEST_F(PiezasDeTextoTest, unaMarcaEstaDondeSusLetras) {
  auto const todas = piezas(QStringLiteral("~/src/parser"), {2, 5});
  ASSERT_EQ(todas.size(), 3);
  EXPECT_NEAR(x(todas[1]), hasta(QStringLiteral("~/")), 1.5);
  EXPECT_NEAR(fin(todas[1]), hasta(QStringLiteral("~/src")), 1.5);
}

TEST_F(PiezasDeTextoTest, loQueNoSeVeNoMueveLaMarca) {
  auto const todas = piezas(QStringLiteral("\u200e~/src/parser"), {3, 6, 7, 13});
  ASSERT_EQ(todas.size(), 5);
  EXPECT_NEAR(x(todas[1]), hasta(QStringLiteral("~/")), 1.5);
  EXPECT_NEAR(fin(todas[1]), hasta(QStringLiteral("~/src")), 1.5);
  EXPECT_NEAR(x(todas[3]), hasta(QStringLiteral("~/src/")), 1.5);
}

TEST_F(PiezasDeTextoTest, unaMarcaQueSeCortaMarcaLosPuntos) {
  auto const texto = QString{60, u'a'} + QStringLiteral("parser") + QString{60, u'b'};
  auto const cortado = PiezasDeTexto::de(texto, letra, ancho, Qt::ElideMiddle, {60, 66});
  auto const dicho = cortado[QStringLiteral("texto")].toString();
  auto const puntos = dicho.indexOf(u'…');
  ASSERT_GT(puntos, 0);
  auto const todas = cortado[QStringLiteral("piezas")].toList();
  ASSERT_EQ(todas.size(), 3);
  EXPECT_TRUE(marcada(todas[1]));
  EXPECT_NEAR(x(todas[1]), hasta(dicho.first(puntos)), 1.5);
}

TEST_F(PiezasDeTextoTest, trasElCorteLaMarcaSigueEnSusLetras) {
  auto const texto = QStringLiteral("\u200e~/") + QString{80, u'x'} + QStringLiteral("/parser/z");
  auto const cortado = PiezasDeTexto::de(texto, letra, ancho, Qt::ElideMiddle, {84, 90});
  auto const dicho = cortado[QStringLiteral("texto")].toString();
  auto const todas = cortado[QStringLiteral("piezas")].toList();
  ASSERT_EQ(todas.size(), 3);
  EXPECT_NEAR(x(todas[1]), hasta(dicho.first(dicho.indexOf(QStringLiteral("parser")))), 2);
  EXPECT_NEAR(fin(todas[1]) - x(todas[1]), hasta(QStringLiteral("parser")), 1.5);
}

TEST_F(PiezasDeTextoTest, laMarcaDeUnaLetraLlevaSusAcentos) {
  auto const todas = piezas(QStringLiteral("cafe\u0301s"), {3, 5});
  ASSERT_EQ(todas.size(), 3);
  EXPECT_NEAR(fin(todas[1]) - x(todas[1]), hasta(QStringLiteral("e")), 2);
}

TEST_F(PiezasDeTextoTest, sinMarcasHayUnaPieza) { EXPECT_EQ(piezas(QStringLiteral("parser"), {}).size(), 1); }

}  // namespace
}  // namespace zorve
