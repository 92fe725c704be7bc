#include "ZorveApp/Qt/Puentes/Etiquetas.h"

#include <gtest/gtest.h>

#include <string>

namespace zorve {
namespace {

TEST(Etiquetas, losSaltosDeLineaSonEspacios) {
  EXPECT_EQ(enUnaLinea("uno\ndos\r\ntres\tcuatro\xE2\x80\xA8"
                       "cinco"),
            QStringLiteral("uno dos  tres cuatro cinco"));
}

TEST(Etiquetas, losCaracteresDeControlSeVen) {
  EXPECT_EQ(enUnaLinea(std::string_view{"a\x1b[31m\0b", 8}), QStringLiteral("a\uFFFD[31m\uFFFDb"));
}

TEST(Etiquetas, losMandosQueImponenLaDireccionSeVen) {
  EXPECT_EQ(enUnaLinea("a\u202Ee\u202Ax\u202C"), QStringLiteral("a\uFFFDe\uFFFDx\uFFFD"));
}

TEST(Etiquetas, lasMarcasYLosAislamientosDeDireccionSeQuedan) {
  auto const texto = "a\u200Eb\u200Fc\u061Cd\u2067\u05D0\u2069";
  EXPECT_EQ(enUnaLinea(texto), QString::fromUtf8(texto));
}

TEST(Etiquetas, losAislamientosAbiertosSeCierranAlFinal) {
  EXPECT_EQ(enUnaLinea("a\u2066b\u2068c\u2069"), QStringLiteral("a\u2066b\u2068c\u2069\u2069"));
  EXPECT_TRUE(enUnaLinea("\u2067" + std::string(5'000, 'x')).endsWith(QStringLiteral("…\u2069")));
}

TEST(Etiquetas, elCierreDeUnAislamientoQueNadieAbrioSeVe) {
  EXPECT_EQ(enUnaLinea("a\u2069b\u2066c\u2069\u2069"), QStringLiteral("a\uFFFDb\u2066c\u2069\uFFFD"));
}

TEST(Etiquetas, elArabeYLosEmojiUnidosSeQuedan) {
  auto const texto = "إصلاح 👩‍🔬 e\u0301";
  EXPECT_EQ(enUnaLinea(texto), QString::fromUtf8(texto));
}

TEST(Etiquetas, losBytesQueNoSonUtf8SeVen) {
  EXPECT_EQ(enUnaLinea("a\xff"
                       "b"),
            QStringLiteral("a\uFFFDb"));
}

TEST(Etiquetas, unTextoEnormeSeCorta) {
  auto const cortado = enUnaLinea(std::string(5'000'000, 'x'));
  EXPECT_EQ(cortado.size(), largoDeUnaLinea + 1);
  EXPECT_TRUE(cortado.endsWith(u'…'));
}

TEST(Etiquetas, elCorteNoParteUnCaracterDeDosUnidades) {
  std::string texto = "x";
  for (int i = 0; i < 2000; ++i) texto += "😀";
  auto const cortado = enUnaLinea(texto);
  EXPECT_TRUE(cortado.chopped(1).back().isLowSurrogate());
}

TEST(Etiquetas, unTextoJustoNoSeCorta) {
  std::string const justo(static_cast<std::size_t>(largoDeUnaLinea), 'x');
  EXPECT_EQ(enUnaLinea(justo), QString::fromStdString(justo));
}

TEST(Etiquetas, enVariasLineasLosSaltosSeQuedan) {
  EXPECT_EQ(enVariasLineas("uno\ndos\r\x07"), QStringLiteral("uno\ndos \uFFFD"));
}

}  // namespace
}  // namespace zorve
