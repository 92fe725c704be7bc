#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "ZorveTerminal/HomeConShell.h"

namespace zorve::ayudante {
namespace {

using Home = dobles::HomeConShell;

/// Settings of one shell that put another in its place: the shell, its file, what that says, who comes.
struct Relevo {
  std::string nombre;
  std::string shell;
  std::string ajustes;
  std::string orden;
  std::string llega;
};

void PrintTo(Relevo const& relevo, std::ostream* salida) { *salida << relevo.nombre; }

class GuionConRelevo : public testing::TestWithParam<Relevo> {
 protected:
  GuionConRelevo() {
    home.carpeta().escribir(GetParam().ajustes,
                            "PATH=\"$HOME/mis programas:$PATH\"\n" + GetParam().orden + "\n");
  }
  Home home{GetParam().shell};
};

INSTANTIATE_TEST_SUITE_P(
    Shells, GuionConRelevo,
    testing::Values(Relevo{"bashEnZsh", "/bin/bash", ".bashrc", "exec zsh", "zsh"},
                    Relevo{"bashEnZshDeEntrada", "/bin/bash", ".bashrc", "exec \"$(command -v zsh)\" -l",
                           "zsh"},
                    Relevo{"bashEnFish", "/bin/bash", ".bashrc", "[ -t 0 ] && exec /usr/bin/fish", "fish"},
                    Relevo{"bashEnFishDeEntrada", "/bin/bash", ".bashrc", "exec fish -l", "fish"},
                    Relevo{"bashEnDash", "/bin/bash", ".bashrc", "exec dash", "dash"},
                    Relevo{"zshEnFish", "/bin/zsh", ".zshrc", "exec fish", "fish"},
                    Relevo{"zshEnBash", "/bin/zsh", ".zshrc", "exec bash", "bash"},
                    Relevo{"zshEnDash", "/bin/zsh", ".zshrc", "exec dash", "dash"}),
    [](auto const& caso) { return caso.param.nombre; });

TEST_P(GuionConRelevo, laOtraShellCorreLaLineaUnaVezYSeQueda) {
  home.claude(
      "printf '%s\\0' \"$(pwd -P; echo .)\" \"$@\" >>\"$HOME/anotado\"; ps -o comm= -p $(ps -o sid= -p $$); "
      "echo AQUI\n");
  auto terminal = home.abrir(home.sesion(), "claude -r 'un id'");
  ASSERT_TRUE(terminal.esperar(GetParam().llega)) << terminal.pantalla();
  ASSERT_TRUE(terminal.esperar("AQUI")) << terminal.pantalla();
  ASSERT_TRUE(terminal.esperar("LISTO> ")) << terminal.pantalla();
  EXPECT_EQ(home.anotado(), (std::vector<std::string>{home.sesion(), "-r", "un id"}));
  terminal.escribir("echo su\"\"ma\n");
  EXPECT_TRUE(terminal.esperar("suma")) << terminal.pantalla();
}

TEST_P(GuionConRelevo, noQuedaNadaNuestroNiEnElEntornoNiEnElDisco) {
  auto terminal = home.abrir(home.sesion(), "env >\"$HOME/entorno\"; echo AQUI");
  ASSERT_TRUE(terminal.esperar("AQUI")) << terminal.pantalla();
  ASSERT_TRUE(terminal.esperar("LISTO> ")) << terminal.pantalla();
  terminal.escribir("env >>\"$HOME/entorno\"; echo fi\"\"nal\n");
  ASSERT_TRUE(terminal.esperar("final")) << terminal.pantalla();
  auto const entorno = "\n" + home.leer("entorno");
  EXPECT_TRUE(entorno.contains("ENV=" + home.carpeta().dentro(".shrc") + "\n"));
  for (auto const* const nuestro :
       {"\nZORVE_", "temporal/zorve", "ZDOTDIR", "XDG_DATA_DIRS", "PROMPT_COMMAND"}) {
    EXPECT_FALSE(entorno.contains(nuestro)) << entorno;
  }
  home.noQuedanCarpetas();
}

TEST(GuionConRelevos, unaShellQueSoloEmpiezaComoHijaDeLosAjustesNoCorreLaLinea) {
  Home const home{"/bin/bash"};
  home.carpeta().escribir(
      ".bashrc",
      "PATH=\"$HOME/mis programas:$PATH\"\nzsh -i -c 'echo hija'; fish -i -c 'echo hija'\n"
      "PS1='LISTO> '\n# exec zsh\n");
  home.claude("ps -o comm= -p $PPID >>\"$HOME/anotado\"\n");
  auto terminal = home.abrir(home.sesion(), "claude");
  ASSERT_TRUE(terminal.esperar("LISTO> ")) << terminal.pantalla();
  EXPECT_EQ(home.leer("anotado"), "bash\n") << terminal.pantalla();
}

}  // namespace
}  // namespace zorve::ayudante
