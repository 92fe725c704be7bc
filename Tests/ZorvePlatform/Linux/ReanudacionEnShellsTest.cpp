#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "Dobles/CarpetaTemporal.h"
#include "Dobles/Correr.h"
#include "ZorveApp/LineaDeReanudacion.h"
#include "ZorveCore/Texto/Escape.h"

namespace zorve {
namespace {

class ReanudacionEn : public testing::TestWithParam<char const*> {
 protected:
  void SetUp() override {
    if (!std::filesystem::exists(GetParam())) GTEST_SKIP() << GetParam() << " is not installed";
    std::filesystem::permissions(carpeta.escribir("bin/claude", "#!/bin/sh\nprintf '%s|' \"$PWD\" \"$@\"\n"),
                                 std::filesystem::perms{0755});
  }
  [[nodiscard]] dobles::Corrida correr(std::string const& linea) const {
    return dobles::correr({GetParam(), "-c", linea}, {{"PATH", carpeta.dentro("bin") + ":/usr/bin:/bin"},
                                                      {"HOME", carpeta.dentro("bin")},
                                                      {"XDG_CONFIG_HOME", carpeta.dentro("bin")},
                                                      {"LC_ALL", "C.UTF-8"}});
  }

  dobles::CarpetaTemporal carpeta;
};

TEST_P(ReanudacionEn, laLineaLlegaAlDirectorioYALaSesion) {
  for (std::string const nombre :
       {"llano", "con espacio", "it's", "barra\\", "dos\\\\barras", "\\'", "$HOME `x` $(x)", "a*?[b]{c,d}",
        "-r", "ñ 中文 🧪", "!!", "~", "#x", "a;b&c|d", "\"dobles\"", "a\nb", "%s", "=zsh", "^x"}) {
    auto const directorio = carpeta.carpeta(nombre);
    auto const linea = lineaDeReanudacion({.cwd = directorio, .sessionId = "id '" + nombre});
    ASSERT_TRUE(linea) << nombre;
    auto const corrida = correr(*linea);
    EXPECT_EQ(corrida.salida, directorio + "|-r|id '" + nombre + "|") << *linea << corrida.error;
  }
}

TEST_P(ReanudacionEn, unaPalabraDeLetrasTraviesasSobrevive) {
  constexpr std::string_view traviesos = "'\"\\$`!*?[]{}()<>|&;#~=%^- \n.aZ";
  std::mt19937 azar{20'260'606};  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same texts in each run
  std::string guion = "printf '%s|'";
  std::string esperado;
  for (int i = 0; i < 400; ++i) {
    std::string texto(azar() % 20, ' ');
    for (auto& byte : texto) byte = traviesos[azar() % traviesos.size()];
    guion += " " + palabraDeCualquierShell(texto);
    esperado += texto + "|";
  }
  EXPECT_EQ(correr(guion).salida, esperado);
}

INSTANTIATE_TEST_SUITE_P(Shells, ReanudacionEn,
                         testing::Values("/bin/sh", "/bin/bash", "/usr/bin/zsh", "/usr/bin/fish"));

TEST(LineaDeReanudacion, noLlevaLoQueUnTerminalObedece) {
  EXPECT_FALSE(lineaDeReanudacion({.cwd = "/a\x1b[2J", .sessionId = "x"}));
  EXPECT_FALSE(lineaDeReanudacion({.cwd = "/a", .sessionId = "x\x03"}));
  EXPECT_FALSE(lineaDeReanudacion({.cwd = "/a"}));
}

}  // namespace
}  // namespace zorve
