#include "ZorveCore/Terminales/Tecleado.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Dobles/AplicacionesFijas.h"
#include "ZorveCore/Terminales/FichaDeTerminal.h"
#include "ZorveCore/Terminales/TerminalApple.h"
#include "ZorveCore/Terminales/TerminalDeLinux.h"
#include "ZorveCore/Terminales/TerminalGhostty.h"
#include "ZorveCore/Terminales/TerminalITerm.h"

namespace zorve {
namespace {

constexpr char const* linea = "claude -r '11111111-2222-4333-8444-555555555555'";

std::optional<std::string> alAbrir(Terminal const& terminal, std::string const& cwd) {
  return loQueNoSeTeclea(std::get<std::vector<ComandoDeApertura>>(terminal.planParaAbrir(cwd, linea)));
}

class Tecleado : public testing::Test {
 protected:
  dobles::AplicacionesFijas const ninguna;
  TerminalApple const apple{"/usr/bin/osascript", ninguna};
  TerminalITerm const iterm{"/usr/bin/osascript", ninguna};
  TerminalGhostty const ghostty{"/usr/bin/osascript", ninguna};
};

TEST_F(Tecleado, ningunCaracterDeControlSalvoTabuladorYSaltoDeLinea) {
  for (int byte = 1; byte < 0x20; ++byte) {
    auto const cwd = "/tmp/x" + std::string(1, static_cast<char>(byte)) + "touch Y";
    for (Terminal const* const terminal :
         {static_cast<Terminal const*>(&apple), static_cast<Terminal const*>(&iterm),
          static_cast<Terminal const*>(&ghostty)}) {
      EXPECT_EQ(alAbrir(*terminal, cwd).has_value(), byte != '\t' && byte != '\n')
          << byte << terminal->nombre();
    }
  }
}

TEST_F(Tecleado, niSuprimirNiLosDeC1NiUnByteSueltoQueLoSea) {
  for (auto const* const cwd : {"/a\x7f", "/a\xc2\x80",
                                "/a\xc2\x9b"
                                "c",
                                "/a\x9b"
                                "c"}) {
    EXPECT_TRUE(alAbrir(apple, cwd)) << cwd;
  }
}

TEST_F(Tecleado, lasLetrasYLosBytesSueltosQueNoLoSonSeTeclean) {
  for (auto const* const cwd :
       {"/srv/it's $(x) \"y\" \\", "/señales/日\U0001F600", "/a\u00a0\u202e", "/a\xff\xfe"}) {
    EXPECT_EQ(alAbrir(apple, cwd), std::nullopt) << cwd;
  }
}

TEST_F(Tecleado, elDirectorioSeDiceConSusControlesALaVista) {
  EXPECT_EQ(alAbrir(apple, "/tmp/x\x15touch PWNED\r"), "/tmp/x\u2415touch PWNED\u240d");
}

TEST_F(Tecleado, loQueNoSeTecleaPuedeSerCualquiera) {
  TerminalDeLinux const xterm{*fichaDeLinux("xterm"), ninguna, "/usr/libexec/zorve/zorve-terminal",
                              SesionDeAhora{[] { return SesionGrafica::x11; }}};
  EXPECT_EQ(alAbrir(xterm, "/tmp/x\x15\x1b\x7f\x9b"), std::nullopt);
}

}  // namespace
}  // namespace zorve
