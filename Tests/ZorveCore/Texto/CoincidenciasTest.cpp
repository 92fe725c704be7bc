#include "ZorveCore/Texto/Coincidencias.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

#include "ZorveCore/Texto/Filtro.h"
#include "ZorveCore/Texto/Texto.h"

namespace zorve {
namespace {

constexpr auto general = ReglaDePlegado::general;
constexpr auto turca = ReglaDePlegado::turca;

std::vector<std::string> marcados(std::string_view texto, std::string_view consulta,
                                  ReglaDePlegado regla = general) {
  std::vector<std::string> piezas;
  for (auto const& [desde, hasta] : tramosDe(texto, fichasDe(consulta, regla), regla)) {
    piezas.emplace_back(texto.substr(desde, hasta - desde));
  }
  return piezas;
}

using Piezas = std::vector<std::string>;

TEST(Coincidencias, sinBusquedaNoHayMarcas) {
  EXPECT_EQ(marcados("parser", ""), Piezas{});
  EXPECT_EQ(marcados("parser", " \t"), Piezas{});
}

TEST(Coincidencias, seMarcaCadaVezQueAparece) {
  EXPECT_EQ(marcados("Parser of parsers", "parser"), (Piezas{"Parser", "parser"}));
}

TEST(Coincidencias, lasPalabrasQueSeTocanSonUnaMarca) {
  EXPECT_EQ(marcados("parser", "par rse"), Piezas{"parse"});
  EXPECT_EQ(marcados("aaa", "aa"), Piezas{"aaa"});
}

TEST(Coincidencias, cajaYAcentosDanIgual) {
  EXPECT_EQ(marcados("Añadir SEÑALES", "senal"), Piezas{"SEÑAL"});
  EXPECT_EQ(marcados("anadir", "AÑA"), Piezas{"ana"});
}

TEST(Coincidencias, lasMarcasSueltasVanConSuLetra) {
  EXPECT_EQ(marcados("cafe\u0301s", "cafe"), Piezas{"cafe\u0301"});
  EXPECT_EQ(marcados("e\u0301e\u0323\u0302x", "ee"), Piezas{"e\u0301e\u0323\u0302"});
}

TEST(Coincidencias, loQuePliegaAVariasLetrasNoSeParte) {
  EXPECT_EQ(marcados("Straße", "ras"), Piezas{"raß"});
  EXPECT_EQ(marcados("oﬃce", "fi"), Piezas{"ﬃ"});
}

TEST(Coincidencias, elCoreanoSeMarcaPorSilabas) { EXPECT_EQ(marcados("한국어", "국"), Piezas{"국"}); }

TEST(Coincidencias, laITurcaPliegaComoElFiltro) {
  EXPECT_EQ(marcados("DIŞ", "dış", turca), Piezas{"DIŞ"});
  EXPECT_EQ(marcados("DIS", "dis", turca), Piezas{});
}

TEST(Coincidencias, losBytesSinSentidoNoMuevenLasMarcas) {
  EXPECT_EQ(marcados("\xff\xfe ñparser", "parser"), Piezas{"parser"});
  EXPECT_EQ(marcados("a\xffz", "\xff"), Piezas{"\xff"});
}

TEST(Coincidencias, loQueNadieVeNoSeMarca) {
  auto const largo = std::string(largoConMarcas, 'x') + "parser";
  EXPECT_EQ(marcados(largo, "parser"), Piezas{});
  EXPECT_EQ(marcados("parser" + largo, "parser"), Piezas{"parser"});
}

/// Texts of letters that fold in every way there is.
std::string revuelto(std::mt19937& azar) {
  static constexpr std::array<std::string_view, 20> letras{
      "a", "B", "I", "i",  "ß",        "ﬁ",       "é",    "e\u0301", "\u0301", "Ñ",
      "İ", "Σ", "ς", "한", "ᄒ\u1161", "क\u093c", "\xff", "\xc3",    "🧪",     " "};
  std::string texto;
  for (auto n = azar() % 12; n > 0; --n) texto += letras.at(azar() % letras.size());
  return texto;
}

TEST(Coincidencias, hayMarcasDondeElFiltroEncuentra) {
  std::mt19937 azar{20'260'101};
  for (int vez = 0; vez < 20'000; ++vez) {
    auto const regla = vez % 2 == 0 ? general : turca;
    auto const texto = revuelto(azar);
    auto const fichas = fichasDe(revuelto(azar).substr(0, 4), regla);
    if (fichas.empty()) continue;
    auto const primera = std::span{fichas}.first(1);
    ASSERT_EQ(coincide(plegar(texto, regla), primera), !tramosDe(texto, primera, regla).empty())
        << testing::PrintToString(texto) << " / " << testing::PrintToString(fichas.front());
  }
}

TEST(Coincidencias, lasMarcasVanEnOrdenYSeparadas) {
  std::mt19937 azar{7};
  for (int vez = 0; vez < 5'000; ++vez) {
    auto const texto = revuelto(azar);
    std::size_t anterior = 0;
    for (auto const& [desde, hasta] : tramosDe(texto, fichasDe("a e i b", general), general)) {
      ASSERT_TRUE(anterior == 0 || desde > anterior);
      ASSERT_LT(desde, hasta);
      ASSERT_LE(hasta, texto.size());
      anterior = hasta;
    }
  }
}

std::string trozo(std::string_view prompt, std::string_view consulta) {
  return trozoQueCoincide("Un título", "/src/zorve", prompt, fichasDe(consulta, general), general);
}

TEST(Coincidencias, elTrozoEsElDelPromptSiNiElTituloNiElDirectorioLoTienen) {
  EXPECT_EQ(trozo("compila y prueba", "prueba"), "compila y prueba");
  EXPECT_EQ(trozo("el título en zorve", "titulo zorve"), "");
  EXPECT_EQ(trozo("compila", "prueba"), "");
}

TEST(Coincidencias, elTrozoEsUnRenglonCortadoPorDondeSigue) {
  auto const dicho = trozo(std::string(300, 'a') + "\n\tuna AGUJA\n" + std::string(300, 'b'), "aguja");
  EXPECT_EQ(dicho, "…" + std::string(34, 'a') + " una AGUJA " + std::string(79, 'b') + "…");
}

TEST(Coincidencias, elTrozoNoParteLetras) {
  auto const acentos = [](int n) {
    std::string texto;
    while (n-- > 0) texto += "e\u0301";
    return texto;
  };
  EXPECT_EQ(trozo(acentos(50) + "aguja" + acentos(90), "aguja"),
            "…" + acentos(40) + "aguja" + acentos(80) + "…");
}

TEST(Coincidencias, deUnPromptEnormeSoloSeMiraElPrincipio) {
  EXPECT_EQ(trozo(std::string(largoDelPrompt, 'x') + "aguja", "aguja"), "");
}

}  // namespace
}  // namespace zorve
