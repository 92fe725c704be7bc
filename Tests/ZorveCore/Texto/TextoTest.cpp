#include "ZorveCore/Texto/Texto.h"
#include "ZorveCore/Texto/TextoPlegado.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zorve {
namespace {

using Piezas = std::vector<std::string_view>;

TEST(Texto, recortarQuitaBlancosUnicodeDeLosExtremosYNadaMas) {
  EXPECT_EQ(recortar(" \t\r\n\v\fa b\u00A0\u2003\u3000\u2028"), "a b");
  EXPECT_EQ(recortar("\u0085\u1680\u202F\u205F"), "");
  EXPECT_EQ(recortar("\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008\u2009\u200Ax\u2029"), "x");
  EXPECT_EQ(recortar("\u1FFFx\u200B"), "\u1FFFx\u200B");
  EXPECT_EQ(recortar(""), "");
  EXPECT_EQ(recortar("\u200B\u00E9"), "\u200B\u00E9");
}

TEST(Texto, recortarDejaLosBytesQueNoSonUtf8) {
  EXPECT_EQ(recortar(" \x85\xA0 "), "\x85\xA0");
  EXPECT_EQ(recortar("\xE2\x80 "), "\xE2\x80");
}

TEST(Texto, palabrasCortaEnTodoBlancoYDejaCaerLasVacias) {
  EXPECT_EQ(palabras("  uno\n\ndos   tres\u2029"), (Piezas{"uno", "dos", "tres"}));
  EXPECT_EQ(palabras("a\u00A0b\u3000\u3000c\u0085d"), (Piezas{"a", "b", "c", "d"}));
  EXPECT_EQ(palabras(" \n "), Piezas{});
  EXPECT_EQ(palabras("\xA0x"), (Piezas{"\xA0x"}));
}

TEST(Texto, recortarAsciiDejaLosDemasBlancos) {
  EXPECT_EQ(recortarAscii(" \t\r\na b\n\r\t "), "a b");
  EXPECT_EQ(recortarAscii("\u00A0a\v"), "\u00A0a\v");
  EXPECT_EQ(recortarAscii(" \n"), "");
}

TEST(Texto, sacarLineaDejaLoQueSigueAlSalto) {
  std::string_view resto = "a\r\n\nb";
  EXPECT_EQ(sacarLinea(resto), "a\r");
  EXPECT_EQ(sacarLinea(resto), "");
  EXPECT_EQ(sacarLinea(resto), "b");
  EXPECT_EQ(resto, "");
  EXPECT_EQ(sacarLinea(resto), "");
}

TEST(Texto, primerosCaracteresCuentaLoQueLaPersonaVe) {
  EXPECT_EQ(primerosCaracteres("abc", 2), "ab");
  EXPECT_EQ(primerosCaracteres("abc", 3), "abc");
  EXPECT_EQ(primerosCaracteres("abc", 0), "");
  EXPECT_EQ(primerosCaracteres("e\u0301f", 1), "e\u0301");
  EXPECT_EQ(primerosCaracteres("\r\nx", 1), "\r\n");
  EXPECT_EQ(primerosCaracteres("👩‍👩‍👧‍👦b", 1), "👩‍👩‍👧‍👦");
  EXPECT_EQ(primerosCaracteres("🇪🇸🇲🇽🇦🇷", 2), "🇪🇸🇲🇽");
  EXPECT_EQ(primerosCaracteres("👍🏽👍🏿", 1), "👍🏽");
  EXPECT_EQ(primerosCaracteres("각x", 1), "각");
}

TEST(Texto, cadaByteQueNoEsUtf8EsUnCaracter) {
  EXPECT_EQ(primerosCaracteres("\xC3\xC3\xA9\xFF", 2), "\xC3\xC3\xA9");
  EXPECT_EQ(primerosCaracteres("\xED\xA0\x80", 2), "\xED\xA0");
  EXPECT_EQ(primerosCaracteres("\xFF\u0301z", 1), "\xFF");
}

TEST(Texto, laReglaTurcaEsDelTurcoYDelAzeri) {
  for (auto const* local : {"tr", "tr_TR.UTF-8", "TR", "az", "az_AZ@latin", "tr-TR", "tr.utf8"}) {
    EXPECT_EQ(reglaDe(local), ReglaDePlegado::turca) << local;
  }
  for (auto const* local : {"", "C", "en_US.UTF-8", "es", "trv_TW", "azb", "de_DE", "x_tr"}) {
    EXPECT_EQ(reglaDe(local), ReglaDePlegado::general) << local;
  }
}

TEST(Texto, unReemplazoPorCadaSubparteMaximaComoRecomiendaUnicode) {
  auto const sustituidos = [](std::string_view bytes) {
    auto texto = conUtf8Valido(bytes);
    for (auto i = texto.find("\uFFFD"); i != std::string::npos; i = texto.find("\uFFFD"))
      texto.replace(i, 3, "?");
    return texto;
  };
  EXPECT_EQ(sustituidos("\xC0\xAF\xE0\x80\xBF\xF0\x81\x82\x41"), "????????A");
  EXPECT_EQ(sustituidos("\xED\xA0\x80\xED\xBF\xBF\xED\xAF\x41"), "????????A");
  EXPECT_EQ(sustituidos("\xF4\x91\x92\x93\xFF\x41\x80\xBF\x42"), "?????A??B");
  EXPECT_EQ(sustituidos("\xE1\x80\xE2\xF0\x91\x92\xF1\xBF\x41"), "????A");
  EXPECT_EQ(sustituidos("\xE2\x82"), "?");
  EXPECT_EQ(sustituidos("\xF0\x9F\x98"), "?");
  EXPECT_EQ(sustituidos("\xF0\x9F\x98\xF0\x9F\x98\x80"), "?\U0001F600");
}

TEST(Texto, lasSecuenciasRotasSeVuelvenReemplazos) {
  EXPECT_EQ(conUtf8Valido("a\xFF\xC3\xA9\xC3"), "a\uFFFD\u00E9\uFFFD");
  EXPECT_EQ(conUtf8Valido("\xED\xA0\x80"), "\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(conUtf8Valido("\xF4\x90\x80\x80"), "\uFFFD\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(conUtf8Valido("\xC0\x80"), "\uFFFD\uFFFD");
  EXPECT_EQ(conUtf8Valido("\xFE\xFF\x80"), "\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(conUtf8Valido(std::string_view{"a\0b", 3}), (std::string_view{"a\0b", 3}));
}

struct Caso {
  std::string_view texto;
  std::string_view general;
  std::string_view turca;
};

class Plegado : public testing::TestWithParam<Caso> {};

TEST_P(Plegado, esElDeLaTabla) {
  auto const& caso = GetParam();
  EXPECT_EQ(plegar(caso.texto, ReglaDePlegado::general), caso.general);
  EXPECT_EQ(plegar(caso.texto, ReglaDePlegado::turca), caso.turca);
}

INSTANTIATE_TEST_SUITE_P(Latino, Plegado,
                         testing::Values(Caso{"ABC xyz-_/09", "abc xyz-_/09", "abc xyz-_/09"},
                                         Caso{"É e\u0301 E\u0301 ÁÜ", "e e e au", "e e e au"},
                                         Caso{"Ñ ñ N\u0303", "n n n", "n n n"},
                                         Caso{"ß ẞ STRASSE", "ss ss strasse", "ss ss strasse"},
                                         Caso{"I", "i", "ı"}, Caso{"MI Inicio", "mi inicio", "mı ınicio"},
                                         Caso{"İ", "i", "i"}, Caso{"I\u0307", "i", "i"},
                                         Caso{"I\u0327\u0307x", "ix", "ix"}, Caso{"ı", "ı", "ı"},
                                         Caso{"Í", "i", "ı"}, Caso{"ﬁ ŉ ſ", "fi ʼn s", "fi ʼn s"},
                                         Caso{"K Å", "k a", "k a"}, Caso{"Ø ø Ł", "ø ø ł", "ø ø ł"},
                                         Caso{"ệ Ǖ", "e u", "e u"}));

Caso igualEnAmbas(std::string_view texto, std::string_view plegado) { return {texto, plegado, plegado}; }

INSTANTIATE_TEST_SUITE_P(
    OtrasEscrituras, Plegado,
    testing::Values(igualEnAmbas("Άς ᾳ α\u0345\u0301 ΐ Σ", "ασ αι αι ι σ"), igualEnAmbas("Й Ё ЩИ", "и е щи"),
                    igualEnAmbas("한국어 각", "한국어 각"), igualEnAmbas("हिन्दी क़", "हिन्दी क\u093C"),
                    igualEnAmbas("が カ\u3099", "が ガ"), igualEnAmbas("漢字 🚀 א\u05B7", "漢字 🚀 א\u05B7"),
                    igualEnAmbas("Ꭰ ꭰ", "Ꭰ Ꭰ")));

INSTANTIATE_TEST_SUITE_P(Marcas, Plegado,
                         testing::Values(igualEnAmbas("\u0301a", "\u0301a"), igualEnAmbas(" \u0301a", " a"),
                                         igualEnAmbas("a\u0301\u0308\u0323b", "ab"),
                                         igualEnAmbas("1\uFE0F\u20E3", "1\u20E3"),
                                         igualEnAmbas("漢\u0301", "漢\u0301")));

INSTANTIATE_TEST_SUITE_P(Utf8Roto, Plegado,
                         testing::Values(igualEnAmbas("\xFF", "\xFF"), igualEnAmbas("A\xC3", "a\xC3"),
                                         igualEnAmbas("\xC3\u0301\xA9", "\xC3\u0301\xA9"),
                                         igualEnAmbas("É\xED\xA0\x80É",
                                                      "e\xED\xA0\x80"
                                                      "e"),
                                         igualEnAmbas("", "")));

std::string enUtf8(char32_t punto) {
  std::string texto;
  auto const byte = [&texto](char32_t valor) { texto += static_cast<char>(valor); };
  if (punto < 0x80) {
    byte(punto);
  } else if (punto < 0x800) {
    byte(0xC0 | (punto >> 6U));
    byte(0x80 | (punto & 0x3FU));
  } else if (punto < 0x10000) {
    byte(0xE0 | (punto >> 12U));
    byte(0x80 | ((punto >> 6U) & 0x3FU));
    byte(0x80 | (punto & 0x3FU));
  } else {
    byte(0xF0 | (punto >> 18U));
    byte(0x80 | ((punto >> 12U) & 0x3FU));
    byte(0x80 | ((punto >> 6U) & 0x3FU));
    byte(0x80 | (punto & 0x3FU));
  }
  return texto;
}

char32_t siguiente(char32_t punto) {
  bool const uniforme =
      (punto >= 0x3400 && punto < 0xA000) || (punto >= 0xAC00 && punto < 0xD780) || punto >= 0x20000;
  punto += uniforme ? 61 : 1;
  return punto >= 0xD800 && punto < 0xE000 ? 0xE000 : punto;
}

TEST(Texto, plegarDosVecesEsPlegarUnaYNoHaceBlancosParaTodaEscritura) {
  for (char32_t punto = 0; punto < 0x110000; punto = siguiente(punto)) {
    auto const texto = enUtf8(punto);
    for (auto const regla : {ReglaDePlegado::general, ReglaDePlegado::turca}) {
      auto const una = plegar(texto, regla);
      ASSERT_EQ(plegar(una, regla), una) << static_cast<std::uint32_t>(punto);
      ASSERT_EQ(palabras(una).size(), palabras(texto).size()) << static_cast<std::uint32_t>(punto);
    }
  }
}

TEST(Texto, lasDosFormasCanonicasPleganIgual) {
  EXPECT_EQ(plegar("\u1EC7 \u00C5 \uAC01", ReglaDePlegado::general),
            plegar("e\u0323\u0302 \u212B \u1100\u1161\u11A8", ReglaDePlegado::general));
}

TEST(Texto, agregarPlegadoDejaLoQueYaEstaba) {
  std::string destino = "Ya";
  agregarPlegado(destino, "ÉSTO", ReglaDePlegado::general);
  EXPECT_EQ(destino, "Yaesto");
}

TEST(Texto, esAsciiMiraTodosLosBytes) {
  std::string texto(200, 'a');
  EXPECT_TRUE(esAscii(texto));
  for (std::size_t i = 0; i < texto.size(); ++i) {
    texto[i] = '\x80';
    EXPECT_FALSE(esAscii(texto)) << i;
    texto[i] = 'a';
  }
  EXPECT_TRUE(esAscii(""));
}

TEST(IgualesSinMayusculas, laCajaNoDistingueYLosAcentosSi) {
  EXPECT_TRUE(igualesSinMayusculas("Org.KDE.Konsole", "org.kde.konsole"));
  EXPECT_TRUE(igualesSinMayusculas("ÑANDÚ", "ñandú"));
  EXPECT_FALSE(igualesSinMayusculas("Términal", "terminal"));
  EXPECT_FALSE(igualesSinMayusculas("xterm", "xterm "));
  EXPECT_TRUE(igualesSinMayusculas("", ""));
}

TEST(IgualesSinMayusculas, loQueNoEsUtf8SoloEsIgualASiMismo) {
  EXPECT_TRUE(igualesSinMayusculas("a\xFF", "a\xFF"));
  EXPECT_FALSE(igualesSinMayusculas("A\xFF", "a\xFF"));
}

}  // namespace
}  // namespace zorve
