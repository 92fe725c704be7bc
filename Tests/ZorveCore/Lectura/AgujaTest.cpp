#include "ZorveCore/Lectura/Aguja.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace zorve {
namespace {

constexpr Aguja titulo{"aiTitle", 0, 2};
constexpr Aguja directorio{"\"cwd\"", 1, 2};

void buscaComoElTexto(Aguja const& aguja, std::string_view texto, std::string_view bloque,
                      std::size_t desde) {
  ASSERT_EQ(aguja.primera(bloque, desde), bloque.find(texto, desde)) << bloque << " from " << desde;
  ASSERT_EQ(aguja.ultima(bloque), bloque.rfind(texto)) << bloque;
}

TEST(Aguja, seHallaEnCadaLugarDeUnBloqueDeCualquierLargo) {
  for (std::size_t largo = 0; largo < 200; ++largo) {
    for (std::size_t lugar = 0; lugar + 7 <= largo; ++lugar) {
      std::string bloque(largo, '.');
      bloque.replace(lugar, 7, "aiTitle");
      ASSERT_EQ(titulo.primera(bloque), lugar);
      ASSERT_EQ(titulo.ultima(bloque), lugar);
    }
  }
}

TEST(Aguja, noSeHallaDondeFaltaUnByte) {
  for (std::size_t largo = 0; largo < 200; ++largo) {
    ASSERT_EQ(titulo.primera(std::string(largo, 'i') + "aiTitl"), Aguja::nada);
    ASSERT_EQ(titulo.ultima("iTitle" + std::string(largo, 'T')), Aguja::nada);
  }
}

TEST(Aguja, entreVariasDaLaPrimeraYLaUltima) {
  std::string const bloque = "..aiTitle" + std::string(300, 'x') + "aiTitleaiTitle.";
  EXPECT_EQ(titulo.primera(bloque), 2U);
  EXPECT_EQ(titulo.primera(bloque, 3), 309U);
  EXPECT_EQ(titulo.ultima(bloque), 316U);
}

TEST(Aguja, unSoloByteTambienSeHalla) {
  constexpr Aguja finDeLinea{"\n", 0, 0};
  std::string const bloque =
      std::string(100, 'x') + "\n" + std::string(100, 'x') + "\n" + std::string(90, 'x');
  EXPECT_EQ(finDeLinea.primera(bloque), 100U);
  EXPECT_EQ(finDeLinea.ultima(bloque), 201U);
  EXPECT_EQ(finDeLinea.ultima("\n"), 0U);
  EXPECT_EQ(finDeLinea.ultima("x"), Aguja::nada);
}

TEST(Aguja, detrasDelFinNoHayNada) {
  EXPECT_EQ(titulo.primera("aiTitle", 1), Aguja::nada);
  EXPECT_EQ(titulo.primera("aiTitle", 7), Aguja::nada);
  EXPECT_EQ(titulo.primera("aiTitle", 90), Aguja::nada);
  EXPECT_EQ(titulo.primera(""), Aguja::nada);
  EXPECT_EQ(titulo.ultima(""), Aguja::nada);
}

TEST(Aguja, loQueAcabaDetrasDelBloqueNoEstaEnEl) {
  std::string_view constexpr entero = "x aiTitle";
  for (std::size_t largo = 0; largo < entero.size(); ++largo) {
    EXPECT_EQ(titulo.primera(entero.substr(0, largo)), Aguja::nada) << largo;
    EXPECT_EQ(titulo.ultima(entero.substr(0, largo)), Aguja::nada) << largo;
  }
}

TEST(Aguja, enBytesAlAzarHallaLoMismoQueElTexto) {
  std::mt19937 azar{7};
  std::string_view constexpr alfabeto = "aiTtle\"cwd\n";
  for (int vez = 0; vez < 20'000; ++vez) {
    std::string bloque(azar() % 300, '\0');
    for (auto& c : bloque) c = alfabeto[azar() % alfabeto.size()];
    if (!bloque.empty() && azar() % 2 == 0) bloque.insert(azar() % bloque.size(), "aiTitle");
    if (!bloque.empty() && azar() % 2 == 0) bloque.insert(azar() % bloque.size(), "\"cwd\"");
    buscaComoElTexto(titulo, "aiTitle", bloque, azar() % 320);
    buscaComoElTexto(directorio, "\"cwd\"", bloque, azar() % 320);
  }
}

}  // namespace
}  // namespace zorve
