#include <fstream>
#include <iterator>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Dobles/AplicacionesFijas.h"
#include "ZorveCore/Terminales/TerminalApple.h"
#include "ZorveCore/Terminales/TerminalGhostty.h"
#include "ZorveCore/Terminales/TerminalITerm.h"

namespace zorve {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr char const* osascript = "/opt/osascript";
constexpr char const* hostil = "/Users/ana/a\\b \"c\"\nd $(x) ñ";

std::string dato(std::string const& nombre) {
  std::ifstream entrada{std::string{ZORVE_DATOS} + "/guiones/" + nombre + ".applescript", std::ios::binary};
  return {std::istreambuf_iterator<char>{entrada}, {}};
}

/// The script of a plan made of one command, with a line feed after it as the files have.
std::string guionDe(PlanDeApertura const& plan) {
  auto const& comandos = std::get<std::vector<ComandoDeApertura>>(plan);
  EXPECT_EQ(comandos.size(), 1U);
  EXPECT_EQ(comandos.at(0).ejecutable, osascript);
  EXPECT_EQ(comandos.at(0).args.size(), 2U);
  EXPECT_EQ(comandos.at(0).args.at(0), "-e");
  return comandos.at(0).args.at(1) + "\n";
}

class TerminalesDeMacOS : public testing::Test {
 protected:
  dobles::AplicacionesFijas aplicaciones;
  TerminalApple apple{osascript, aplicaciones};
  TerminalITerm iterm{osascript, aplicaciones};
  TerminalGhostty ghostty{osascript, aplicaciones};
};

TEST_F(TerminalesDeMacOS, terminalDiceQuienEs) {
  EXPECT_EQ(apple.identificador(), "com.apple.Terminal");
  EXPECT_EQ(apple.nombre(), "Terminal");
  EXPECT_EQ(apple.nombreDelBundle(), "Terminal.app");
  EXPECT_TRUE(apple.puedeEnfocar());
}

TEST_F(TerminalesDeMacOS, iTermDiceQuienEs) {
  EXPECT_EQ(iterm.identificador(), "com.googlecode.iterm2");
  EXPECT_EQ(iterm.nombre(), "iTerm2");
  EXPECT_EQ(iterm.nombreDelBundle(), "iTerm.app");
  EXPECT_TRUE(iterm.puedeEnfocar());
}

TEST_F(TerminalesDeMacOS, ghosttyDiceQuienEs) {
  EXPECT_EQ(ghostty.identificador(), "com.mitchellh.ghostty");
  EXPECT_EQ(ghostty.nombre(), "Ghostty");
  EXPECT_EQ(ghostty.nombreDelBundle(), "Ghostty.app");
  EXPECT_FALSE(ghostty.puedeEnfocar());
}

TEST_F(TerminalesDeMacOS, cadaUnaEstaInstaladaSiElSistemaConoceSuIdentificador) {
  aplicaciones.instaladas = {"com.googlecode.iterm2"};
  EXPECT_FALSE(apple.estaInstalada());
  EXPECT_TRUE(iterm.estaInstalada());
  EXPECT_FALSE(ghostty.estaInstalada());
}

TEST_F(TerminalesDeMacOS, elGuionDeAbrirDeTerminalEsExacto) {
  EXPECT_EQ(guionDe(apple.planParaAbrir("/Users/ana/it's", "claude -r 'abc'")), dato("terminal-abrir"));
}

TEST_F(TerminalesDeMacOS, elGuionDeAbrirDeITermEsExacto) {
  EXPECT_EQ(guionDe(iterm.planParaAbrir("/Users/ana/it's", "claude -r 'abc'")), dato("iterm2-abrir"));
}

TEST_F(TerminalesDeMacOS, elGuionDeAbrirDeGhosttyEsExactoYDejaElApostrofo) {
  EXPECT_EQ(guionDe(ghostty.planParaAbrir("/Users/ana/it's", "claude -r 'abc'")), dato("ghostty-abrir"));
}

TEST_F(TerminalesDeMacOS, comillasBarrasYSaltosDeLineaPasanPorTerminal) {
  EXPECT_EQ(guionDe(apple.planParaAbrir(hostil, "claude -r 'a'\\''b'")), dato("terminal-abrir-hostil"));
}

TEST_F(TerminalesDeMacOS, comillasBarrasYSaltosDeLineaPasanPorGhostty) {
  EXPECT_EQ(guionDe(ghostty.planParaAbrir(hostil, "claude -r 'a'\\''b'")), dato("ghostty-abrir-hostil"));
}

TEST_F(TerminalesDeMacOS, elGuionDeEnfocarDeTerminalEsExacto) {
  EXPECT_EQ(guionDe(apple.planParaEnfocar("ttys004").value()), dato("terminal-enfocar"));
}

TEST_F(TerminalesDeMacOS, elGuionDeEnfocarDeITermEsExacto) {
  EXPECT_EQ(guionDe(iterm.planParaEnfocar("ttys004").value()), dato("iterm2-enfocar"));
}

TEST_F(TerminalesDeMacOS, elPrefijoDeDispositivoNoCambiaElGuion) {
  EXPECT_EQ(apple.planParaEnfocar("/dev/ttys004"), apple.planParaEnfocar("ttys004"));
  EXPECT_EQ(iterm.planParaEnfocar("/dev/ttys004"), iterm.planParaEnfocar("ttys004"));
  EXPECT_EQ(ghostty.planParaEnfocar("/dev/ttys004"), ghostty.planParaEnfocar("ttys004"));
}

TEST_F(TerminalesDeMacOS, elPrefijoSoloSeQuitaAlPrincipio) {
  EXPECT_THAT(guionDe(apple.planParaEnfocar("x/dev/ttys004").value()),
              HasSubstr("if elTty is \"/dev/x/dev/ttys004\" or elTty is \"x/dev/ttys004\" then"));
}

TEST_F(TerminalesDeMacOS, unTtyHostilNoSaleDeSuLiteral) {
  auto const guion = guionDe(iterm.planParaEnfocar("a\" & quit & \"").value());
  EXPECT_THAT(guion, HasSubstr("elTty is \"a\\\" & quit & \\\"\" then"));
  EXPECT_THAT(guion, Not(HasSubstr("\"a\" & quit")));
}

TEST_F(TerminalesDeMacOS, ghosttyNuncaEnfocaPeroDiceElTty) {
  EXPECT_EQ(ghostty.planParaEnfocar("/dev/ttys004"), PlanDeApertura{NoSePuedeEnfocar{"ttys004"}});
}

TEST_F(TerminalesDeMacOS, hospedaLoQueCorreDentroDeSuCarpeta) {
  EXPECT_TRUE(iterm.hospeda("/Applications/iTerm.app/Contents/MacOS/iTerm2"));
  EXPECT_FALSE(iterm.hospeda("/Applications/iTerm.app"));
  EXPECT_FALSE(iterm.hospeda("/Applications/MiiTerm.app/Contents/MacOS/x"));
  EXPECT_FALSE(iterm.hospeda("iTerm.app/Contents"));
  EXPECT_FALSE(apple.hospeda("/Applications/iTerm.app/Contents/MacOS/iTerm2"));
}

}  // namespace
}  // namespace zorve
