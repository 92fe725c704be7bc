#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "Dobles/CarpetaTemporal.h"
#include "Dobles/Pseudoterminal.h"
#include "ZorveCore/Escape.h"
#include "ZorveTerminal/CasaConShell.h"
#include "ZorveTerminal/GuionDeShell.h"

namespace zorve {
namespace {

using Casa = dobles::CasaConShell;
using dobles::CarpetaTemporal;
using dobles::Pseudoterminal;

constexpr std::string_view controlC = "\x03";
constexpr std::string_view controlZ = "\x1a";

class GuionEnCadaShell : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Shells, GuionEnCadaShell,
                         testing::Values("/bin/bash", "/bin/zsh", "/usr/bin/fish", "/bin/dash"),
                         [](auto const& shell) { return shell.param.substr(shell.param.rfind('/') + 1); });

TEST_P(GuionEnCadaShell, corraLaLineaConLosAjustesDeLaPersonaYSeQueda) {
  Casa const casa{GetParam()};
  auto terminal = casa.abrir(casa.sesion(), "claude -r 'un id'");
  ASSERT_TRUE(terminal.esperar("AQUI")) << terminal.pantalla();
  ASSERT_TRUE(terminal.esperar("LISTO> ")) << terminal.pantalla();
  EXPECT_EQ(casa.anotado(), (std::vector<std::string>{casa.sesion(), "-r", "un id"}));
  terminal.escribir("echo su\"\"ma\n");
  EXPECT_TRUE(terminal.esperar("suma")) << terminal.pantalla();
  terminal.escribir("exit\n");
  EXPECT_EQ(terminal.terminar(), 0);
}

TEST_P(GuionEnCadaShell, losBytesRarosLleganTalComoSon) {
  Casa const casa{GetParam()};
  std::string const raro =
      "-a 'b'\"c\" $HOME `id` $(id) \\ \\\\n ;&|<>*?[x]{y,z}~!#%\t\n\x01\x1b[31m\x7f ñ 日 \xff\xfe\n";
  auto const directorio = casa.carpeta().carpeta(raro);
  auto terminal = casa.abrir(directorio, "claude -r " + palabraDeShell(raro));
  ASSERT_TRUE(terminal.esperar("AQUI")) << terminal.pantalla();
  EXPECT_EQ(casa.anotado(),
            (std::vector<std::string>{std::filesystem::canonical(directorio).string(), "-r", raro}));
}

TEST_P(GuionEnCadaShell, unDirectorioQueYaNoEstaDejaElAvisoYUnaShellSinCorrerNada) {
  Casa const casa{GetParam()};
  auto terminal = casa.abrir(casa.carpeta().dentro("perdida"), "claude -r x");
  ASSERT_TRUE(terminal.esperar("perdida")) << terminal.pantalla();
  ASSERT_TRUE(terminal.esperar("LISTO> ")) << terminal.pantalla();
  EXPECT_TRUE(casa.anotado().empty());
}

TEST_P(GuionEnCadaShell, sinClaudeLaShellLoDiceYSeQueda) {
  Casa const casa{GetParam()};
  std::filesystem::remove(casa.carpeta().dentro("mis programas/claude"));
  auto terminal = casa.abrir(casa.sesion(), "claude -r x");
  ASSERT_TRUE(terminal.esperar("not found")) << terminal.pantalla();
  EXPECT_TRUE(terminal.esperar("LISTO> ")) << terminal.pantalla();
}

TEST_P(GuionEnCadaShell, controlCTerminaLaOrdenYNoLaShell) {
  Casa const casa{GetParam()};
  casa.claude("echo EN MARCHA; while :; do read -r linea; done\n");
  auto terminal = casa.abrir(casa.sesion(), "claude -r x");
  ASSERT_TRUE(terminal.esperar("EN MARCHA")) << terminal.pantalla();
  terminal.escribir(controlC);
  ASSERT_TRUE(terminal.esperar("LISTO> ")) << terminal.pantalla();
  terminal.escribir("echo su\"\"ma\n");
  EXPECT_TRUE(terminal.esperar("suma")) << terminal.pantalla();
}

TEST_P(GuionEnCadaShell, noDejaArchivosNiVariables) {
  Casa const casa{GetParam()};
  auto const senal = casa.carpeta().carpeta("señal");
  casa.claude("env | grep -a ZORVE_; echo AQUI\n");
  auto terminal = casa.abrir(casa.sesion(), "claude", senal);
  ASSERT_TRUE(terminal.esperar("AQUI")) << terminal.pantalla();
  ASSERT_TRUE(terminal.esperar("LISTO> ")) << terminal.pantalla();
  terminal.escribir("env | grep -a ZORV[E]_; echo fi\"\"nal\n");
  ASSERT_TRUE(terminal.esperar("final")) << terminal.pantalla();
  EXPECT_FALSE(terminal.pantalla().contains("ZORVE_")) << terminal.pantalla();
  EXPECT_FALSE(std::filesystem::exists(senal));
  casa.noQuedanCarpetas();
}

TEST_P(GuionEnCadaShell, laShellSabeQuienEs) {
  Casa const casa{GetParam()};
  casa.claude("echo \"$SHELL.\"\n");
  auto terminal = casa.abrir(casa.sesion(), "claude");
  EXPECT_TRUE(terminal.esperar(GetParam() + ".")) << terminal.pantalla();
}

class GuionConTrabajos : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Shells, GuionConTrabajos, testing::Values("/bin/bash", "/bin/zsh", "/bin/dash"),
                         [](auto const& shell) { return shell.param.substr(shell.param.rfind('/') + 1); });

TEST_P(GuionConTrabajos, controlZLaDetieneYFgLaSigue) {
  Casa const casa{GetParam()};
  casa.claude("trap 'echo SIGUE' CONT; echo EN MARCHA; while :; do read -r linea; done\n");
  auto terminal = casa.abrir(casa.sesion(), "claude -r x");
  ASSERT_TRUE(terminal.esperar("EN MARCHA")) << terminal.pantalla();
  terminal.escribir(controlZ);
  ASSERT_TRUE(terminal.esperar("LISTO> ")) << terminal.pantalla();
  terminal.escribir("jobs; fg\n");
  ASSERT_TRUE(terminal.esperar("SIGUE")) << terminal.pantalla();
  terminal.escribir(controlC);
  ASSERT_TRUE(terminal.esperar("LISTO> ")) << terminal.pantalla();
  terminal.escribir("echo su\"\"ma\n");
  EXPECT_TRUE(terminal.esperar("suma")) << terminal.pantalla();
}

class GuionConHistorial : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Shells, GuionConHistorial, testing::Values("/bin/bash", "/bin/zsh"),
                         [](auto const& shell) { return shell.param.substr(shell.param.rfind('/') + 1); });

TEST_P(GuionConHistorial, laOrdenQuedaEnElHistorial) {
  Casa const casa{GetParam()};
  auto terminal = casa.abrir(casa.sesion(), "claude -r 'un id'");
  ASSERT_TRUE(terminal.esperar("LISTO> ")) << terminal.pantalla();
  terminal.escribir("fc -l\n");
  EXPECT_TRUE(terminal.esperar("claude -r 'un id'")) << terminal.pantalla();
}

TEST(GuionEnBash, elPromptDeLaPersonaSeCalculaTambienLaPrimeraVezYVeElEstado) {
  Casa const casa{"/bin/bash"};
  casa.carpeta().escribir(".bashrc",
                          "PATH=\"$HOME/mis programas:$PATH\"\nmio() { PS1=\"estado $? LISTO> \"; }\n"
                          "PROMPT_COMMAND=mio\n");
  casa.claude("exit 7\n");
  auto terminal = casa.abrir(casa.sesion(), "claude");
  EXPECT_TRUE(terminal.esperar("estado 7 LISTO> ")) << terminal.pantalla();
  terminal.escribir("false\n");
  EXPECT_TRUE(terminal.esperar("estado 1 LISTO> ")) << terminal.pantalla();
}

TEST(GuionEnBash, unaListaDeOrdenesDelPromptSigueSiendoUnaLista) {
  Casa const casa{"/bin/bash"};
  casa.carpeta().escribir(".bashrc", "PROMPT_COMMAND=('PS1=\"uno \"' 'PS1+=\"dos LISTO> \"')\n");
  auto terminal = casa.abrir(casa.sesion(), "true");
  ASSERT_TRUE(terminal.esperar("uno dos LISTO> ")) << terminal.pantalla();
  terminal.escribir("declare -p PROMPT_COMMAND\n");
  EXPECT_TRUE(terminal.esperar("declare -a PROMPT_COMMAND=([0]=")) << terminal.pantalla();
}

TEST(GuionEnZsh, laCarpetaDeAjustesDeLaPersonaSigueSiendoLaSuya) {
  Casa const casa{"/bin/zsh"};
  casa.carpeta().escribir(".zshenv", "export ZDOTDIR=$HOME/ajustes\n");
  casa.carpeta().escribir("ajustes/.zshrc", "PS1='OTRO LISTO> '\nunsetopt PROMPT_SP\n");
  auto terminal = casa.abrir(casa.sesion(), "true");
  ASSERT_TRUE(terminal.esperar("OTRO LISTO> ")) << terminal.pantalla();
  terminal.escribir("echo \"[$ZDOTDIR]\"\n");
  EXPECT_TRUE(terminal.esperar("[" + casa.carpeta().dentro("ajustes") + "]")) << terminal.pantalla();
}

TEST(Guion, unDirectorioQueEmpiezaPorGuionNoEsUnaOpcion) {
  Casa const casa{"/bin/dash"};
  casa.carpeta().carpeta("-");
  auto terminal = casa.abrir("-", "claude");
  ASSERT_TRUE(terminal.esperar("AQUI")) << terminal.pantalla();
  EXPECT_EQ(casa.anotado().at(0), std::filesystem::canonical(casa.carpeta().dentro("-")).string());
}

TEST(Guion, laCasaDeLaPersonaPuedeSerOtraQueLaQueDiceElTerminal) {
  CarpetaTemporal const carpeta;
  carpeta.escribir(".bashrc", "PS1='CASA> '\n");
  Pseudoterminal terminal{palabrasDelGuion({"/", "echo \"<$HOME>\"", "/bin/bash", carpeta.ruta(), ""}),
                          {"HOME=/otra", "PATH=/usr/bin:/bin", "TERM=dumb"},
                          "/"};
  EXPECT_TRUE(terminal.esperar("<" + carpeta.ruta() + ">")) << terminal.pantalla();
  EXPECT_TRUE(terminal.esperar("CASA> ")) << terminal.pantalla();
}

TEST(Guion, lasPalabrasNoLlevanNingunByteDeLaOrdenSinCodificar) {
  auto const palabras = palabrasDelGuion({"/a$HOME\\b", "claude -r 'x'", "/bin/bash", "", ""});
  ASSERT_EQ(palabras.size(), 4U);
  EXPECT_EQ(palabras[0], "/bin/sh");
  EXPECT_EQ(palabras[1], "-c");
  EXPECT_FALSE(palabras[2].contains('\\'));
  EXPECT_FALSE(palabras[2].contains("claude"));
  EXPECT_FALSE(palabras[2].contains("HOME"));
}

TEST(Guion, base64SegunSusEjemplos) {
  EXPECT_EQ(base64(""), "");
  EXPECT_EQ(base64("f"), "Zg==");
  EXPECT_EQ(base64("fo"), "Zm8=");
  EXPECT_EQ(base64("foo"), "Zm9v");
  EXPECT_EQ(base64("foobar"), "Zm9vYmFy");
  EXPECT_EQ(base64("\xff\xfe\xfd"), "//79");
}

}  // namespace
}  // namespace zorve
