#include "ZorveCore/Terminales/AnfitrionaTmux.h"

#include <gtest/gtest.h>

#include "Dobles/AplicacionesFijas.h"
#include "Dobles/EjecutorGuionado.h"
#include "Dobles/TerminalFija.h"
#include "ZorveCore/Terminales/CatalogoDeTerminales.h"
#include "ZorveCore/Terminales/Launcher.h"
#include "ZorveCore/Terminales/TerminalDeLinux.h"

namespace zorve {
namespace {

using dobles::terminalFija;

class TmuxEntreLasAnfitrionas : public testing::Test {
 protected:
  [[nodiscard]] std::vector<AnfitrionaRef> anfitrionas() const {
    return anfitrionasDeLinux("/z/zorve-terminal")(conocidas, elegida);
  }
  [[nodiscard]] PlanDeApertura plan() const {
    Launcher const lanzador{elegida, ps, dobles::EjecutorGuionado::rutaPs, anfitrionas()};
    return lanzador.plan({.cwd = "/w", .liveState = LiveState::busy, .sessionId = "abc", .pid = 100}).value();
  }
  static PlanDeApertura ayudante(std::vector<std::string> args) {
    return std::vector{ComandoDeApertura{"/z/zorve-terminal", std::move(args)}};
  }

  dobles::AplicacionesFijas aplicaciones;
  dobles::EjecutorGuionado ps;
  std::vector<TerminalRef> conocidas =
      terminalesDeLinux(aplicaciones, "/z/zorve-terminal", SesionGrafica::x11);
  TerminalRef elegida = buscarTerminal("kitty", conocidas);
};

TEST_F(TmuxEntreLasAnfitrionas, vaDetrasDeLasConocidasYNoEsNingunaDeEllas) {
  auto const todas = anfitrionas();
  ASSERT_EQ(todas.size(), conocidas.size() + 1);
  EXPECT_TRUE(std::equal(conocidas.begin(), conocidas.end(), todas.begin()));
  EXPECT_EQ(todas.back()->nombre(), "tmux");
  EXPECT_EQ(buscarTerminal("tmux", conocidas), nullptr);
}

TEST_F(TmuxEntreLasAnfitrionas, hospedaAlServidorConSuBlancoYANingunOtro) {
  auto const tmux = anfitrionas().back();
  EXPECT_TRUE(tmux->hospeda("tmux: server"));
  for (auto const* const otro : {"", "tmux", "tmux: client", "/usr/bin/tmux", "server", "xterm"}) {
    EXPECT_FALSE(tmux->hospeda(otro)) << otro;
  }
}

TEST_F(TmuxEntreLasAnfitrionas, unaSesionDentroDeTmuxVaAlAyudanteConLaTerminalElegidaYSuProceso) {
  ps.proceso(100, 90, "claude", "pts/3").proceso(90, 80, "bash").proceso(80, 1, "tmux: server");
  EXPECT_EQ(plan(), ayudante({"focus", "tmux", "pts/3", "kitty", "100"}));
}

TEST_F(TmuxEntreLasAnfitrionas, unServidorQueEmpezoEnUnaVentanaTambienEsTmux) {
  ps.proceso(100, 90, "claude", "pts/3").proceso(90, 80, "tmux: server").proceso(80, 1, "xterm");
  EXPECT_EQ(plan(), ayudante({"focus", "tmux", "pts/3", "kitty", "100"}));
}

TEST_F(TmuxEntreLasAnfitrionas, sinNingunaTerminalQueEnfoqueTampocoPuede) {
  conocidas = terminalesDeLinux(aplicaciones, "/z/zorve-terminal", SesionGrafica::otra);
  ps.proceso(100, 90, "claude", "pts/3").proceso(90, 1, "tmux: server");
  EXPECT_EQ(plan(), PlanDeApertura{NoSePuedeEnfocar{"pts/3"}});
  EXPECT_EQ(anfitrionas().back()->planParaEnfocar("/dev/pts/3"), PlanDeApertura{NoSePuedeEnfocar{"pts/3"}});
}

TEST(SoloLasConocidas, sonLasDelCatalogoYNingunaMas) {
  std::vector<TerminalRef> const conocidas{terminalFija({.identificador = "uno", .nombre = "Uno"})};
  EXPECT_EQ(soloLasConocidas(conocidas, nullptr), (std::vector<AnfitrionaRef>{conocidas.front()}));
}

}  // namespace
}  // namespace zorve
