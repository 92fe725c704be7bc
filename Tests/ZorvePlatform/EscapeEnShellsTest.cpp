#include <random>

#include <gtest/gtest.h>

#include "Dobles/CarpetaTemporal.h"
#include "Dobles/Correr.h"
#include "Dobles/LectorDeLiterales.h"
#include "ZorveCore/Texto/Escape.h"

namespace zorve {
namespace {

constexpr int palabrasAlAzar = 600;

/// Texts of any bytes but NUL, rich in what a shell or a literal would trip over.
std::vector<std::string> textosAlAzar() {
  constexpr std::string_view traviesos = "'\"\\$`!*?[]{}()<>|&;#~=%^- \t\n\r\x01\x7F";
  std::mt19937 azar{20240607};  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same texts in each run
  std::vector<std::string> textos{"",   "-n", "-e",        "it's",     "''",
                                  "\\", "\n", "$(exit 3)", "\xFF\xFE", "ñ日\U0001F600"};
  for (int i = 0; i < palabrasAlAzar; ++i) {
    std::string texto(azar() % 24, ' ');
    for (auto& byte : texto) {
      byte = azar() % 2 == 0 ? traviesos[azar() % traviesos.size()] : static_cast<char>(1 + azar() % 255);
    }
    textos.push_back(texto);
  }
  return textos;
}

std::string unidos(std::vector<std::string> const& textos) {
  std::string todo;
  for (auto const& texto : textos) todo += texto + '\0';
  return todo;
}

#ifdef __APPLE__
constexpr char const* utf8 = "en_US.UTF-8";
#else
constexpr char const* utf8 = "C.UTF-8";
#endif

class PalabraDeShell : public testing::TestWithParam<std::pair<char const*, char const*>> {};

TEST_P(PalabraDeShell, sobreviveEnUnaShellDeVerdad) {
  auto const textos = textosAlAzar();
  std::string guion = "printf '%s\\0'";
  for (auto const& texto : textos) guion += " " + palabraDeShell(texto);
  dobles::CarpetaTemporal const carpeta;
  auto const archivo = carpeta.escribir("guion", guion + "\n");
  auto const corrida = dobles::correr({GetParam().first, archivo}, {{"LC_ALL", GetParam().second}});
  EXPECT_EQ(corrida.codigo, 0);
  EXPECT_EQ(corrida.error, "");
  EXPECT_TRUE(corrida.salida == unidos(textos));
}

TEST_P(PalabraDeShell, sobreviveComoLineaDeOrdenes) {
  for (std::string const texto : {"it's $(x) `y` \\ \"", "a\nb", "-x", "ñ\xFF"}) {
    auto const corrida = dobles::correr({GetParam().first, "-c", "printf %s " + palabraDeShell(texto)},
                                        {{"LC_ALL", GetParam().second}});
    EXPECT_EQ(corrida.salida, texto);
  }
}

INSTANTIATE_TEST_SUITE_P(Escape, PalabraDeShell,
                         testing::Values(std::pair{"/bin/sh", "C"}, std::pair{"/bin/sh", utf8},
                                         std::pair{"/bin/bash", "C"}, std::pair{"/bin/bash", utf8},
                                         std::pair{"/bin/dash", utf8}, std::pair{"/bin/zsh", "C"},
                                         std::pair{"/bin/zsh", utf8}));

TEST(LiteralDeAppleScript, seLeeTalComoSeEscribio) {
  for (auto const& texto : textosAlAzar()) {
    EXPECT_EQ(dobles::leerLiteralDeAppleScript(literalDeAppleScript(texto)), texto);
  }
}

TEST(LiteralDeAppleScript, conservaUnNul) {
  std::string const texto{"a\0b", 3};
  EXPECT_EQ(dobles::leerLiteralDeAppleScript(literalDeAppleScript(texto)), texto);
}

}  // namespace
}  // namespace zorve
