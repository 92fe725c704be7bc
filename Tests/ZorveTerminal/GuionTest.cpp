#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "Dobles/CarpetaTemporal.h"
#include "Dobles/Pseudoterminal.h"
#include "ZorveCore/Texto/Escape.h"
#include "ZorveTerminal/CarpetaDePaso.h"
#include "ZorveTerminal/HomeConShell.h"
#include "ZorveTerminal/PalabrasDelGuion.h"

namespace zorve::ayudante {
namespace {

using Home = dobles::HomeConShell;
using dobles::CarpetaTemporal;
using dobles::Pseudoterminal;

constexpr std::string_view controlC = "\x03";
constexpr std::string_view controlZ = "\x1a";

class GuionEnCadaShell : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Shells, GuionEnCadaShell,
                         testing::Values("/bin/bash", "/bin/zsh", "/usr/bin/fish", "/bin/dash"),
                         [](auto const& shell) { return shell.param.substr(shell.param.rfind('/') + 1); });

TEST_P(GuionEnCadaShell, corraLaLineaConLosAjustesDeLaPersonaYSeQueda) {
  Home const home{GetParam()};
  auto terminal = home.abrir(home.sesion(), "claude -r 'un id'");
  ASSERT_TRUE(terminal.esperar("AQUI")) << terminal.pantalla();
  ASSERT_TRUE(terminal.esperar("LISTO> ")) << terminal.pantalla();
  EXPECT_EQ(home.anotado(), (std::vector<std::string>{home.sesion(), "-r", "un id"}));
  terminal.escribir("echo su\"\"ma\n");
  EXPECT_TRUE(terminal.esperar("suma")) << terminal.pantalla();
  terminal.escribir("exit\n");
  EXPECT_EQ(terminal.terminar(), 0);
}

TEST_P(GuionEnCadaShell, losBytesRarosLleganTalComoSon) {
  Home const home{GetParam()};
  std::string const raro =
      "-a 'b'\"c\" $HOME `id` $(id) \\ \\\\n ;&|<>*?[x]{y,z}~!#%\t\n\x01\x1b[31m\x7f ñ 日 \xff\xfe\n";
  auto const directorio = home.carpeta().carpeta(raro);
  auto terminal = home.abrir(directorio, "claude -r " + palabraDeShell(raro));
  ASSERT_TRUE(terminal.esperar("AQUI")) << terminal.pantalla();
  EXPECT_EQ(home.anotado(),
            (std::vector<std::string>{std::filesystem::canonical(directorio).string(), "-r", raro}));
}

TEST_P(GuionEnCadaShell, unDirectorioQueYaNoEstaDejaElAvisoYUnaShellSinCorrerNada) {
  Home const home{GetParam()};
  auto terminal = home.abrir(home.carpeta().dentro("perdida"), "claude -r x");
  ASSERT_TRUE(terminal.esperar("perdida")) << terminal.pantalla();
  ASSERT_TRUE(terminal.esperar("LISTO> ")) << terminal.pantalla();
  EXPECT_TRUE(home.anotado().empty());
}

TEST_P(GuionEnCadaShell, sinClaudeLaShellLoDiceYSeQueda) {
  Home const home{GetParam()};
  std::filesystem::remove(home.carpeta().dentro("mis programas/claude"));
  auto terminal = home.abrir(home.sesion(), "claude -r x");
  ASSERT_TRUE(terminal.esperar("not found")) << terminal.pantalla();
  EXPECT_TRUE(terminal.esperar("LISTO> ")) << terminal.pantalla();
}

TEST_P(GuionEnCadaShell, controlCTerminaLaOrdenYNoLaShell) {
  Home const home{GetParam()};
  home.claude("echo EN MARCHA; while :; do read -r linea; done\n");
  auto terminal = home.abrir(home.sesion(), "claude -r x");
  ASSERT_TRUE(terminal.esperar("EN MARCHA")) << terminal.pantalla();
  terminal.escribir(controlC);
  ASSERT_TRUE(terminal.esperar("LISTO> ")) << terminal.pantalla();
  terminal.escribir("echo su\"\"ma\n");
  EXPECT_TRUE(terminal.esperar("suma")) << terminal.pantalla();
}

TEST_P(GuionEnCadaShell, noDejaArchivosNiVariables) {
  Home const home{GetParam()};
  home.claude("env | grep -a ZORVE_; echo AQUI\n");
  auto terminal = home.abrir(home.sesion(), "claude");
  ASSERT_TRUE(terminal.esperar("AQUI")) << terminal.pantalla();
  ASSERT_TRUE(terminal.esperar("LISTO> ")) << terminal.pantalla();
  terminal.escribir("env | grep -a ZORV[E]_; echo fi\"\"nal\n");
  ASSERT_TRUE(terminal.esperar("final")) << terminal.pantalla();
  EXPECT_FALSE(terminal.pantalla().contains("ZORVE_")) << terminal.pantalla();
  home.noQuedanCarpetas();
}

TEST_P(GuionEnCadaShell, laShellSabeQuienEs) {
  Home const home{GetParam()};
  home.claude("echo \"$SHELL.\"\n");
  auto terminal = home.abrir(home.sesion(), "claude");
  EXPECT_TRUE(terminal.esperar(GetParam() + ".")) << terminal.pantalla();
}

class GuionConTrabajos : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Shells, GuionConTrabajos, testing::Values("/bin/bash", "/bin/zsh", "/bin/dash"),
                         [](auto const& shell) { return shell.param.substr(shell.param.rfind('/') + 1); });

TEST_P(GuionConTrabajos, controlZLaDetieneYFgLaSigue) {
  Home const home{GetParam()};
  home.claude("trap 'echo SIGUE' CONT; echo EN MARCHA; while :; do read -r linea; done\n");
  auto terminal = home.abrir(home.sesion(), "claude -r x");
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

/// fish runs programs of its own at its start.
TEST_P(GuionConTrabajos, ningunProgramaDelDirectorioHaceElTrabajoDelGuion) {
  Home const home{GetParam()};
  for (auto const* const nombre : {"grep", "mktemp", "rm", "rmdir", "mkdir", "cat"}) {
    auto const ruta =
        home.carpeta().escribir(std::string{"sesión/"} + nombre, "#!/bin/sh\n: >\"$HOME/ajeno\"\n");
    std::filesystem::permissions(ruta, std::filesystem::perms{0755});
  }
  auto terminal = home.abrir(home.sesion(), "echo AQUI", ".::/usr/local/bin:/usr/bin:/bin");
  ASSERT_TRUE(terminal.esperar("AQUI")) << terminal.pantalla();
  ASSERT_TRUE(terminal.esperar("LISTO> ")) << terminal.pantalla();
  EXPECT_FALSE(std::filesystem::exists(home.carpeta().dentro("ajeno")));
  home.noQuedanCarpetas();
}

class GuionConHistorial : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Shells, GuionConHistorial, testing::Values("/bin/bash", "/bin/zsh"),
                         [](auto const& shell) { return shell.param.substr(shell.param.rfind('/') + 1); });

TEST_P(GuionConHistorial, laOrdenQuedaEnElHistorial) {
  Home const home{GetParam()};
  auto terminal = home.abrir(home.sesion(), "claude -r 'un id'");
  ASSERT_TRUE(terminal.esperar("LISTO> ")) << terminal.pantalla();
  terminal.escribir("fc -l\n");
  EXPECT_TRUE(terminal.esperar("claude -r 'un id'")) << terminal.pantalla();
}

TEST(GuionEnBash, elPromptDeLaPersonaSeCalculaTambienLaPrimeraVezYVeElEstado) {
  Home const home{"/bin/bash"};
  home.carpeta().escribir(".bashrc",
                          "PATH=\"$HOME/mis programas:$PATH\"\nmio() { PS1=\"estado $? LISTO> \"; }\n"
                          "PROMPT_COMMAND=mio\n");
  home.claude("exit 7\n");
  auto terminal = home.abrir(home.sesion(), "claude");
  EXPECT_TRUE(terminal.esperar("estado 7 LISTO> ")) << terminal.pantalla();
  terminal.escribir("false\n");
  EXPECT_TRUE(terminal.esperar("estado 1 LISTO> ")) << terminal.pantalla();
}

TEST(GuionEnBash, unaListaDeOrdenesDelPromptSigueSiendoUnaLista) {
  Home const home{"/bin/bash"};
  home.carpeta().escribir(".bashrc", "PROMPT_COMMAND=('PS1=\"uno \"' 'PS1+=\"dos LISTO> \"')\n");
  auto terminal = home.abrir(home.sesion(), "true");
  ASSERT_TRUE(terminal.esperar("uno dos LISTO> ")) << terminal.pantalla();
  terminal.escribir("declare -p PROMPT_COMMAND\n");
  EXPECT_TRUE(terminal.esperar("declare -a PROMPT_COMMAND=([0]=")) << terminal.pantalla();
}

TEST(GuionEnZsh, laCarpetaDeAjustesDeLaPersonaSigueSiendoLaSuya) {
  Home const home{"/bin/zsh"};
  home.carpeta().escribir(".zshenv", "export ZDOTDIR=$HOME/ajustes\n");
  home.carpeta().escribir("ajustes/.zshrc", "PS1='OTRO LISTO> '\nunsetopt PROMPT_SP\n");
  auto terminal = home.abrir(home.sesion(), "true");
  ASSERT_TRUE(terminal.esperar("OTRO LISTO> ")) << terminal.pantalla();
  terminal.escribir("echo \"[$ZDOTDIR]\"\n");
  EXPECT_TRUE(terminal.esperar("[" + home.carpeta().dentro("ajustes") + "]")) << terminal.pantalla();
}

TEST(Guion, unDirectorioQueEmpiezaPorGuionNoEsUnaOpcion) {
  Home const home{"/bin/dash"};
  home.carpeta().carpeta("-");
  auto terminal = home.abrir("-", "claude");
  ASSERT_TRUE(terminal.esperar("AQUI")) << terminal.pantalla();
  EXPECT_EQ(home.anotado().at(0), std::filesystem::canonical(home.carpeta().dentro("-")).string());
}

TEST(Guion, laCasaDeLaPersonaPuedeSerOtraQueLaQueDiceElTerminal) {
  CarpetaTemporal const carpeta;
  carpeta.escribir(".bashrc", "PS1='CASA> '\n");
  LugarDePaso const lugar{carpeta.carpeta("r"), true};
  CarpetaDePaso paso{lugar};
  paso.dejar();
  Pseudoterminal terminal{
      palabrasDelGuion({"/", "echo \"<$HOME>\"", "/bin/bash", carpeta.ruta()}, paso, lugar),
      {"HOME=/otra", "PATH=/usr/bin:/bin", "TERM=dumb"},
      "/"};
  EXPECT_TRUE(terminal.esperar("<" + carpeta.ruta() + ">")) << terminal.pantalla();
  EXPECT_TRUE(terminal.esperar("CASA> ")) << terminal.pantalla();
}

TEST(Guion, lasPalabrasSoloNombranLaCarpetaQueNadieMasAbre) {
  CarpetaTemporal const carpeta;
  CarpetaDePaso const paso{{carpeta.ruta(), true}};
  auto const palabras = palabrasDelGuion({"/un/secreto", "claude -r 'x'", "/bin/bash", "/home"}, paso, {});
  EXPECT_EQ(palabras, (std::vector<std::string>{"/bin/sh", paso.ruta() + "/orden"}));
  EXPECT_EQ(std::filesystem::status(paso.ruta()).permissions(), std::filesystem::perms{0700});
  EXPECT_EQ(std::filesystem::status(paso.ruta() + "/orden").permissions(), std::filesystem::perms{0600});
  EXPECT_EQ(std::filesystem::status(paso.ruta() + "/linea").permissions(), std::filesystem::perms{0600});
}

/// The settings put tmux in the shell's place: what they were handed lives on in its server.
class GuionYTmux : public testing::TestWithParam<std::string> {
 protected:
  [[nodiscard]] std::string entornoEnTmux(Home const& home) const {
    auto const dentro = "env >\"$HOME/entorno\"; : >\"$HOME/hecho\"";
    home.carpeta().escribir("dentro", dentro);
    auto const ajustes = "TERM=xterm; [ -n \"$TMUX\" ] || exec tmux -f /dev/null -S " +
                         home.carpeta().dentro("t") + " new-session '. ~/dentro'\n";
    for (auto const* const archivo : {".bashrc", ".shrc", ".zshrc"})
      home.carpeta().escribir(archivo, ajustes);
    auto terminal = home.abrir(home.sesion(), "claude -r secreto");
    for (int i = 0; i < 400 && !std::filesystem::exists(home.carpeta().dentro("hecho")); ++i) {
      (void)terminal.esperar("nunca", std::chrono::seconds{0});
      std::this_thread::sleep_for(std::chrono::milliseconds{25});
    }
    return "\n" + home.leer("entorno");
  }
};

INSTANTIATE_TEST_SUITE_P(Shells, GuionYTmux, testing::Values("/bin/bash", "/bin/zsh", "/bin/dash"),
                         [](auto const& shell) { return shell.param.substr(shell.param.rfind('/') + 1); });

TEST_P(GuionYTmux, enSuServidorNoQuedaNiLaLineaNiUnaCarpetaQueOtrosPuedanRehacer) {
  Home home{GetParam()};
  home.lugar.privado = false;
  auto const entorno = entornoEnTmux(home);
  ASSERT_TRUE(entorno.contains("\nTMUX=")) << entorno;
  EXPECT_FALSE(entorno.contains("secreto")) << entorno;
  EXPECT_FALSE(entorno.contains(home.lugar.carpeta + "/zorve-")) << entorno;
}

/// The environment within tmux, which the settings of zsh put in its place; `orden` runs there.
std::string entornoEnTmuxDeZsh(std::string const& orden) {
  Home const home{"/bin/zsh"};
  home.carpeta().escribir("dentro", "env >~/entorno; : >~/hecho\n");
  home.carpeta().escribir(".zshrc", "TERM=xterm\nT=" + home.carpeta().dentro("t") +
                                        "\n[[ -n $TMUX ]] || exec tmux -f /dev/null -S $T new-session '" +
                                        orden + "'\n");
  auto terminal = home.abrir(home.sesion(), "claude -r secreto");
  for (int i = 0; i < 400 && !std::filesystem::exists(home.carpeta().dentro("hecho")); ++i) {
    (void)terminal.esperar("nunca", std::chrono::seconds{0});
    std::this_thread::sleep_for(std::chrono::milliseconds{25});
  }
  auto const entorno = "\n" + home.leer("entorno");
  EXPECT_TRUE(entorno.contains("\nTMUX=")) << entorno << terminal.pantalla();
  return entorno;
}

TEST(GuionYTmuxEnZsh, dondeNadieTomaElRelevoNoSeEntregaNada) {
  auto const entorno = entornoEnTmuxDeZsh(". ~/dentro");
  EXPECT_FALSE(entorno.contains("\nZORVE_")) << entorno;
  EXPECT_FALSE(entorno.contains("/temporal/zorve-")) << entorno;
}

TEST(GuionYTmuxEnZsh, otraShellQueHeredaElRelevoSeLoQuita) {
  auto const entorno = entornoEnTmuxDeZsh("dash -i -c \". ~/dentro\" # exec sh");
  EXPECT_FALSE(entorno.contains("\nZORVE_")) << entorno;
  for (auto const* const nuestra : {"\nZDOTDIR=", "\nXDG_DATA_DIRS=", "\nPROMPT_COMMAND="}) {
    EXPECT_FALSE(entorno.contains(nuestra)) << entorno;
  }
  EXPECT_TRUE(entorno.contains("/.shrc\n")) << "the person's own ENV is back";
}

}  // namespace
}  // namespace zorve::ayudante
