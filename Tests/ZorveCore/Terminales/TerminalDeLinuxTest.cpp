#include "ZorveCore/Terminales/TerminalDeLinux.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "ZorveCore/Terminales/FichaDeTerminal.h"
#include "ZorveCore/Terminales/TerminalDeLinux.h"

namespace zorve {
namespace {

class SoloHay final : public AplicacionesInstaladas {
 public:
  explicit SoloHay(std::set<std::string> cuales) : cuales_{std::move(cuales)} {}
  [[nodiscard]] bool hay(std::string const& identificador) const override {
    return cuales_.contains(identificador);
  }

 private:
  std::set<std::string> cuales_;
};

TerminalRef terminal(std::string const& identificador, AplicacionesInstaladas const& aplicaciones) {
  auto const todos = terminalesDeLinux(aplicaciones, "/opt/z/zorve-terminal");
  auto const it =
      std::ranges::find(todos, identificador, [](auto const& uno) { return uno->identificador(); });
  return it == todos.end() ? nullptr : *it;
}

struct Fila {
  std::string identificador;
  std::string nombre;
  std::string programa;
  std::string proceso;
};

class CadaTerminalDeLinux : public testing::TestWithParam<Fila> {};

INSTANTIATE_TEST_SUITE_P(
    Filas, CadaTerminalDeLinux,
    testing::Values(Fila{"org.gnome.Terminal", "GNOME Terminal", "gnome-terminal", "gnome-terminal-"},
                    Fila{"org.kde.konsole", "Konsole", "konsole", "konsole"},
                    Fila{"kitty", "kitty", "kitty", "kitty"},
                    Fila{"xfce4-terminal", "Xfce Terminal", "xfce4-terminal", "xfce4-terminal"},
                    Fila{"Alacritty", "Alacritty", "alacritty", "alacritty"},
                    Fila{"foot", "foot", "foot", "foot"},
                    Fila{"ghostty-linux", "Ghostty", "ghostty", "ghostty"},
                    Fila{"org.wezfurlong.wezterm", "WezTerm", "wezterm", "wezterm-gui"},
                    Fila{"org.gnome.Console", "GNOME Console", "kgx", "kgx"},
                    Fila{"com.gexperts.Tilix", "Tilix", "tilix", "tilix"},
                    Fila{"qterminal", "QTerminal", "qterminal", "qterminal"},
                    Fila{"terminator", "Terminator", "terminator", "terminator"},
                    Fila{"xterm", "xterm", "xterm", "xterm"}),
    [](auto const& caso) {
      std::string nombre;
      std::ranges::copy_if(caso.param.programa, std::back_inserter(nombre),
                           [](char letra) { return letra != '-'; });
      return nombre;
    });

TEST_P(CadaTerminalDeLinux, abreConUnaOrdenAlAyudanteYTodoEnArgumentos) {
  auto const uno = terminal(GetParam().identificador, SoloHay{{}});
  ASSERT_NE(uno, nullptr);
  EXPECT_EQ(uno->nombre(), GetParam().nombre);
  EXPECT_TRUE(uno->nombreDelBundle().ends_with(".desktop"));
  PlanDeApertura const esperado = std::vector{ComandoDeApertura{
      "/opt/z/zorve-terminal", {"open", GetParam().identificador, "/a 'b'\n", "claude -r 'x'"}}};
  EXPECT_EQ(uno->planParaAbrir("/a 'b'\n", "claude -r 'x'"), esperado);
}

TEST_P(CadaTerminalDeLinux, estaInstaladaSiSeConoceSuProgramaOSuEntradaDeEscritorio) {
  SoloHay const ninguna{{"otra"}};
  SoloHay const programa{{GetParam().programa}};
  auto const archivo = fichaDeLinux(GetParam().identificador)->entradaDeEscritorio;
  SoloHay const entrada{{archivo.substr(0, archivo.rfind('.'))}};
  EXPECT_FALSE(terminal(GetParam().identificador, ninguna)->estaInstalada());
  EXPECT_TRUE(terminal(GetParam().identificador, programa)->estaInstalada());
  EXPECT_TRUE(terminal(GetParam().identificador, entrada)->estaInstalada());
}

TEST_P(CadaTerminalDeLinux, hospedaASusProcesosYANingunOtro) {
  SoloHay const ninguna{{}};
  auto const uno = terminal(GetParam().identificador, ninguna);
  EXPECT_TRUE(uno->hospeda(GetParam().proceso));
  EXPECT_TRUE(uno->hospeda("/usr/local/bin/" + GetParam().proceso));
  for (auto const* const otro : {"", "/", "bash", "tmux: server", "xterminal", "/usr/bin/kitty/otro"}) {
    EXPECT_FALSE(uno->hospeda(otro)) << otro;
  }
}

TEST(TerminalesDeLinux, soloEnfocaLaQuePuedeEnSuSesionGrafica) {
  SoloHay const ninguna{{}};
  for (auto const sesion : {SesionGrafica::otra, SesionGrafica::x11, SesionGrafica::sway, SesionGrafica::kwin,
                            SesionGrafica::gnome, SesionGrafica::gnomeSinExtension}) {
    for (auto const& uno : terminalesDeLinux(ninguna, "/z", sesion)) {
      auto const& donde = fichaDeLinux(uno->identificador())->enfocableEn;
      bool const puede = std::ranges::find(donde, sesion) != donde.end();
      EXPECT_EQ(uno->puedeEnfocar(), puede) << uno->identificador();
      PlanDeApertura const orden =
          std::vector{ComandoDeApertura{"/z", {"focus", uno->identificador(), "pts/3"}}};
      EXPECT_EQ(uno->planParaEnfocar("/dev/pts/3"), puede ? orden : NoSePuedeEnfocar{"pts/3"});
      EXPECT_EQ(uno->planParaEnfocar("pts/3"), uno->planParaEnfocar("/dev/pts/3"));
    }
  }
  EXPECT_EQ(fichaDeLinux("foot")->enfocableEn, (std::vector{SesionGrafica::sway, SesionGrafica::gnome}));
}

TEST(TerminalesDeLinux, sinLaExtensionDeGnomeSoloEnfocanLasDeXYLasQueTomanElTestigo) {
  std::vector<std::string> enfocables;
  for (auto const& ficha : fichasDeLinux()) {
    if (seEnfocaEn(ficha, SesionGrafica::gnomeSinExtension)) enfocables.push_back(ficha.identificador);
  }
  EXPECT_EQ(enfocables, (std::vector<std::string>{"org.gnome.Terminal", "org.gnome.Console", "xterm"}));
}

TEST(TerminalesDeLinux, siPuedeEnfocarSePreguntaCadaVez) {
  SoloHay const ninguna{{}};
  auto sesion = SesionGrafica::gnomeSinExtension;
  for (auto const& uno : terminalesDeLinux(ninguna, "/z", SesionDeAhora{[&] { return sesion; }})) {
    if (uno->identificador() != "kitty") continue;
    EXPECT_FALSE(uno->puedeEnfocar());
    sesion = SesionGrafica::gnome;
    EXPECT_TRUE(uno->puedeEnfocar());
  }
}

TEST(TerminalesDeLinux, ningunProcesoTieneDosDuenos) {
  std::set<std::string> vistos;
  for (auto const& ficha : fichasDeLinux()) {
    for (auto const& proceso : ficha.procesos) {
      EXPECT_TRUE(vistos.insert(proceso).second) << proceso;
      EXPECT_LE(proceso.size(), 15U) << proceso;
    }
  }
}

TEST(TerminalesDeLinux, losIdentificadoresNoSeRepitenYSeBuscanSinMayusculas) {
  std::set<std::string> vistos;
  for (auto const& ficha : fichasDeLinux()) EXPECT_TRUE(vistos.insert(ficha.identificador).second);
  EXPECT_EQ(fichaDeLinux("ALACRITTY"), fichaDeLinux("Alacritty"));
  EXPECT_NE(fichaDeLinux("Alacritty"), nullptr);
  EXPECT_EQ(fichaDeLinux("com.apple.Terminal"), nullptr);
}

}  // namespace
}  // namespace zorve
