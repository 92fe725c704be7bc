#include <filesystem>

#include <gtest/gtest.h>

#include "Terminales/Escritorio.h"
#include "ZorveCore/Texto/Escape.h"

namespace zorve::pruebas {
namespace {

constexpr char const* sesion = "11111111-aaaa-4bbb-8ccc-000000000001";
constexpr char const* nombreHostil =
    "-it's \"d\" $(touch X) `touch X` $HOME \\ \\n ;&|<>*?[x]~!#\nñ日\U0001F600 \x01 ";

/// A JSON text literal.
std::string literalJson(std::string_view texto) {
  constexpr std::string_view cifras = "0123456789abcdef";
  std::string literal = "\"";
  for (char const letra : texto) {
    auto const byte = static_cast<unsigned char>(letra);
    if (byte < 0x20) {
      literal += std::string{"\\u00"} + cifras[byte / 16] + cifras[byte % 16];
      continue;
    }
    if (letra == '"' || letra == '\\') literal += '\\';
    literal += letra;
  }
  return literal + "\"";
}

class ZorvectlEnXterm : public testing::Test {
 protected:
  [[nodiscard]] dobles::Corrida zorvectl(std::vector<std::string> palabras) const {
    palabras.insert(palabras.begin(), ZORVECTL);
    return escritorio.correr(std::move(palabras));
  }
  void conSesionEn(std::string const& cwd) const {
    escritorio.home().escribir(std::string{".claude/projects/p/"} + sesion + ".jsonl", "{}\n");
    escritorio.home().escribir(".claude/history.jsonl",
                               R"({"display":"hola","timestamp":1700000000000,"project":)" +
                                   literalJson(cwd) + R"(,"sessionId":")" + sesion + "\"}\n");
  }
  void anotaron(std::string const& directorio, std::vector<std::string> const& args) const {
    auto const anotados = escritorio.anotados(1);
    ASSERT_EQ(anotados.size(), 1U);
    EXPECT_EQ(anotados[0].directorio, std::filesystem::canonical(directorio).string());
    EXPECT_EQ(anotados[0].args, args);
    EXPECT_TRUE(anotados[0].tty.starts_with("/dev/pts/")) << anotados[0].tty;
  }

  Escritorio escritorio{Escritorio::Pantalla::x11};
};

TEST_F(ZorvectlEnXterm, openReabreUnaSesionEnSuCarpetaHostil) {
  ASSERT_TRUE(programaInstalado("xterm"));
  auto const directorio = escritorio.home().carpeta(nombreHostil);
  conSesionEn(directorio);
  ASSERT_EQ(zorvectl({"choose", "xterm"}).codigo, 0);
  auto const corrida = zorvectl({"open", "1111"});
  ASSERT_EQ(corrida.codigo, 0) << corrida.error;
  EXPECT_EQ(corrida.salida + corrida.error, "");
  anotaron(directorio, {"-r", sesion});
  EXPECT_FALSE(std::filesystem::exists(escritorio.home().dentro("X")));
}

TEST_F(ZorvectlEnXterm, openLlevaCadaByteDeCarpetaYOrden) {
  ASSERT_TRUE(programaInstalado("xterm"));
  std::string const raro = std::string{"\xFF\xFE "} + nombreHostil;
  auto const directorio = escritorio.home().carpeta(raro);
  auto const corrida = zorvectl(
      {"open", "--cwd", directorio, "--command", "claude -r " + palabraDeShell(raro), "--terminal", "xterm"});
  ASSERT_EQ(corrida.codigo, 0) << corrida.error;
  anotaron(directorio, {"-r", raro});
}

TEST_F(ZorvectlEnXterm, siXtermNoPuedeEmpezarSusPalabrasLlegan) {
  ASSERT_TRUE(programaInstalado("xterm"));
  escritorio.variables["DISPLAY"] = ":65000";
  auto const corrida = zorvectl({"open", "--cwd", "/", "--command", "true", "--terminal", "xterm"});
  EXPECT_EQ(corrida.codigo, 1);
  EXPECT_EQ(corrida.salida, "");
  EXPECT_TRUE(corrida.error.contains("/zorve-terminal exited with code 1: ")) << corrida.error;
  EXPECT_TRUE(corrida.error.contains(":65000")) << corrida.error;
}

}  // namespace
}  // namespace zorve::pruebas
