#include "ZorveTerminal/Entorno.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zorve::ayudante {
namespace {

using Textos = std::vector<std::string>;

TEST(Entorno, quitaLoQueDiceEnQueVentanaSeEsta) {
  Textos const entorno{"HOME=/h",
                       "WINDOWID=1",
                       "TMUX=/tmp/s,1,2",
                       "TMUX_PANE=%1",
                       "KITTY_WINDOW_ID=3",
                       "GNOME_TERMINAL_SCREEN=/x",
                       "GNOME_TERMINAL_SERVICE=:1",
                       "KONSOLE_DBUS_SERVICE=:1.2",
                       "TILIX_ID=a",
                       "DISPLAY=:0",
                       "TERM=xterm"};
  EXPECT_EQ(entornoLimpio(entorno), (Textos{"HOME=/h", "DISPLAY=:0", "TERM=xterm"}));
}

TEST(Entorno, dejaLosNombresQueSoloSeParecen) {
  Textos const entorno{"WINDOWID_MIO=1", "MI_TMUX=2", "TMUX_TMPDIR=/t",
                       "TILIX_IDS=3",    "KITTY=4",   "SIN_VALOR"};
  EXPECT_EQ(entornoLimpio(entorno), entorno);
}

TEST(Entorno, elValorEsTodoLoQueSigueAlPrimerIgual) {
  Textos const entorno{"AB=no", "A=b=c", "A=otra"};
  EXPECT_EQ(valorEn(entorno, "A"), "b=c");
  EXPECT_EQ(valorEn(entorno, "X"), "");
}

TEST(Entorno, laShellEsLaDelEntornoSiSePuedeCorrer) {
  EXPECT_EQ(shellDeLaPersona(Textos{"SHELL=/bin/sh"}), "/bin/sh");
  EXPECT_TRUE(shellDeLaPersona(Textos{"SHELL=/no/esta"}).starts_with("/"));
  EXPECT_NE(shellDeLaPersona(Textos{"SHELL=/no/esta"}), "/no/esta");
  EXPECT_TRUE(shellDeLaPersona(Textos{"SHELL=bash"}).starts_with("/"));
}

TEST(Entorno, unaCarpetaNoEsUnaShell) { EXPECT_NE(shellDeLaPersona(Textos{"SHELL=/"}), "/"); }

}  // namespace
}  // namespace zorve::ayudante
