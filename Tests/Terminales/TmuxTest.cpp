#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

#include "Dobles/Pseudoterminal.h"
#include "Terminales/Escritorio.h"
#include "ZorveCore/Escape.h"
#include "ZorveTerminal/Sway.h"

namespace zorve::pruebas {
namespace {

using Palabras = std::vector<std::string>;

/// A desktop with one tmux server, whose panes hold sessions that write down the lines they are typed.
class ConTmux : public testing::Test {
 protected:
  void TearDown() override {
    for (auto const pid : parados) ::kill(pid, SIGCONT);
  }

  [[nodiscard]] dobles::Corrida tmux(Palabras palabras, std::string const& cual) const {
    palabras.insert(palabras.begin(), {"tmux", "-f", "/dev/null", "-S", cual});
    return escritorio.correr(std::move(palabras));
  }
  [[nodiscard]] dobles::Corrida tmux(Palabras palabras) const { return tmux(std::move(palabras), enchufe); }

  /// Runs the command with a session behind it; gives the session's place in `panes`.
  std::size_t pane(Palabras palabras) {
    palabras.push_back(escritorio.casa().dentro("propios/claude"));
    auto const corrida = tmux(std::move(palabras));
    EXPECT_EQ(corrida.codigo, 0) << corrida.error;
    anotarElNuevo();
    return panes.size() - 1;
  }

  /// A window of the terminal that shows the session.
  void cliente(std::string const& terminal, std::string const& sesion) const {
    auto const antes = clientes();
    auto const corrida = escritorio.ayudante({"open", terminal, escritorio.casa().ruta(),
                                              "tmux -S " + palabraDeShell(enchufe) + " attach -t " + sesion});
    ASSERT_EQ(corrida.codigo, 0) << corrida.error;
    ASSERT_TRUE(esperarA([&] { return clientes() == antes + 1; }));
  }
  [[nodiscard]] std::ptrdiff_t clientes() const {
    return std::ranges::count(tmux({"list-clients", "-F", "x"}).salida, '\n');
  }

  [[nodiscard]] dobles::Corrida enfocar(std::size_t cual, std::string const& terminal = "xterm") const {
    return escritorio.ayudante({"focus", "tmux", panes.at(cual).tty, terminal});
  }
  [[nodiscard]] std::vector<std::string> teclas() const {
    std::vector<std::string> todas;
    todas.reserve(panes.size());
    for (auto const& uno : panes) {
      todas.push_back(leerArchivoDePrueba(escritorio.casa().dentro("teclas/" + std::to_string(uno.pid))));
    }
    return todas;
  }
  /// Presses a key and sees it arrive at that session and at no other.
  void laTeclaLlegaSoloA(std::size_t cual, std::string const& tecla) const {
    auto esperadas = teclas();
    esperadas.at(cual) += tecla + "\n";
    ASSERT_EQ(escritorio.correr({"xdotool", "key", tecla, "Return"}).codigo, 0);
    EXPECT_TRUE(esperarA([&] { return teclas().at(cual) == esperadas.at(cual); }, std::chrono::seconds{10}));
    EXPECT_EQ(teclas(), esperadas);
  }
  void enfocadaLaTeclaLlegaSoloA(std::size_t cual, std::string const& tecla) const {
    auto const corrida = enfocar(cual);
    ASSERT_EQ(corrida.codigo, 0) << corrida.error;
    EXPECT_EQ(corrida.error, "");
    laTeclaLlegaSoloA(cual, tecla);
  }
  void parar(pid_t pid) {
    parados.push_back(pid);
    ASSERT_EQ(::kill(pid, SIGSTOP), 0);
  }

  void anotarElNuevo() {
    auto const todos = escritorio.anotados(panes.size() + 1);
    auto const nuevo = std::ranges::find_if(
        todos, [&](Anotado const& uno) { return std::ranges::count(panes, uno.pid, &Anotado::pid) == 0; });
    ASSERT_NE(nuevo, todos.end());
    panes.push_back(*nuevo);
  }

  explicit ConTmux(Escritorio::Pantalla pantalla = Escritorio::Pantalla::x11) : escritorio{pantalla} {}

  Escritorio escritorio;
  std::string enchufe = escritorio.casa().dentro("r/t m");
  std::vector<Anotado> panes;
  std::vector<pid_t> parados;
};

/// Under sway, whose own word is taken for what has the keyboard.
class ConTmuxEnSway : public ConTmux {
 protected:
  ConTmuxEnSway() : ConTmux{Escritorio::Pantalla::wayland} {}

  /// The window that has the keyboard once the session is in front.
  [[nodiscard]] std::uint64_t ventanaDe(std::size_t cual) const {
    auto const corrida = enfocar(cual, "foot");
    EXPECT_EQ(corrida.codigo, 0) << corrida.error;
    auto const mostrados = tmux({"list-clients", "-F", "#{pane_tty}"}).salida;
    EXPECT_TRUE(mostrados.contains(panes.at(cual).tty + "\n")) << mostrados;
    for (auto const& ventana :
         ventanasDelArbol(escritorio.correr({"swaymsg", "-r", "-t", "get_tree"}).salida)) {
      if (ventana.enfocada) return ventana.id;
    }
    return 0;
  }
};

TEST_F(ConTmuxEnSway, cadaPaneTraeLaVentanaDeSuCliente) {
  auto const uno = pane({"new-session", "-d", "-s", "uno"});
  auto const otraVentana = pane({"new-window", "-t", "uno"});
  auto const dos = pane({"new-session", "-d", "-s", "dos"});
  cliente("foot", "uno");
  cliente("foot", "dos");
  auto const primera = ventanaDe(uno);
  auto const segunda = ventanaDe(dos);
  EXPECT_NE(primera, 0U);
  EXPECT_NE(segunda, 0U);
  EXPECT_NE(primera, segunda);
  ASSERT_EQ(escritorio.correr({"swaymsg", "workspace", "9"}).codigo, 0);
  EXPECT_EQ(ventanaDe(otraVentana), primera);
}

TEST_F(ConTmux, laTeclaLlegaAlPaneDeCadaVentanaYSesionEnDosTerminales) {
  auto const uno = pane({"new-session", "-d", "-s", "uno"});
  auto const alLado = pane({"split-window", "-t", "uno"});
  auto const otraVentana = pane({"new-window", "-t", "uno"});
  auto const dos = pane({"new-session", "-d", "-s", "dos"});
  auto const debajo = pane({"split-window", "-v", "-t", "dos"});
  cliente("xterm", "uno");
  cliente("Alacritty", "dos");
  enfocadaLaTeclaLlegaSoloA(uno, "a");
  enfocadaLaTeclaLlegaSoloA(dos, "b");
  enfocadaLaTeclaLlegaSoloA(otraVentana, "c");
  ASSERT_EQ(escritorio.correr({"xdotool", "getactivewindow", "windowminimize"}).codigo, 0);
  enfocadaLaTeclaLlegaSoloA(alLado, "d");
  ASSERT_EQ(escritorio.correr({"xdotool", "set_desktop", "1"}).codigo, 0);
  enfocadaLaTeclaLlegaSoloA(debajo, "e");
}

TEST_F(ConTmux, unaSesionSinClienteSeMuestraEnElQueSeUsoUltimoYSinNingunoEnVentanaNueva) {
  auto const uno = pane({"new-session", "-d", "-s", "uno"});
  auto const dos = pane({"new-session", "-d", "-s", "dos"});
  ASSERT_EQ(enfocar(dos).codigo, 0);
  EXPECT_EQ(clientes(), 1);
  ASSERT_TRUE(esperarA([&] { return escritorio.correr({"xdotool", "getactivewindow"}).codigo == 0; }));
  laTeclaLlegaSoloA(dos, "a");
  enfocadaLaTeclaLlegaSoloA(uno, "b");
  EXPECT_EQ(clientes(), 1) << "the client changes its session";
}

TEST_F(ConTmux, unaSesionQueAcabariaSinSuClienteLoConserva) {
  auto const uno = pane({"new-session", "-d", "-s", "uno"});
  auto const dos = pane({"new-session", "-d", "-s", "dos"});
  cliente("xterm", "uno");
  ASSERT_EQ(tmux({"set-option", "-t", "uno", "destroy-unattached", "on"}).codigo, 0);
  ASSERT_EQ(enfocar(dos).codigo, 0);
  EXPECT_EQ(clientes(), 2);
  ASSERT_EQ(tmux({"set-option", "-t", "dos", "destroy-unattached", "on"}).codigo, 0);
  enfocadaLaTeclaLlegaSoloA(uno, "a");
  enfocadaLaTeclaLlegaSoloA(dos, "b");
}

TEST_F(ConTmux, enUnGrupoCadaClienteSigueEnSuSesion) {
  auto const uno = pane({"new-session", "-d", "-s", "uno"});
  auto const otra = pane({"new-window", "-t", "uno"});
  ASSERT_EQ(tmux({"new-session", "-d", "-t", "uno", "-s", "grupo"}).codigo, 0);
  cliente("xterm", "grupo");
  enfocadaLaTeclaLlegaSoloA(uno, "a");
  enfocadaLaTeclaLlegaSoloA(otra, "b");
  EXPECT_EQ(tmux({"list-clients", "-F", "#{client_session}"}).salida, "grupo\n");
}

TEST_F(ConTmux, unTmuxDentroDeOtroSeMuestraEnteroHastaLaVentana) {
  auto const dentro = escritorio.casa().dentro("r/dentro");
  auto const fuera = pane({"new-session", "-d", "-s", "fuera"});
  auto const claude = escritorio.casa().dentro("propios/claude");
  ASSERT_EQ(tmux({"new-session", "-d", "-s", "dentro", claude}, dentro).codigo, 0);
  anotarElNuevo();
  ASSERT_EQ(tmux({"new-window", "-d", "-t", "fuera", "TMUX= tmux -S " + dentro + " attach; read"}).codigo, 0);
  ASSERT_TRUE(esperarA([&] { return !tmux({"list-clients"}, dentro).salida.empty(); }));
  cliente("xterm", "fuera");
  enfocadaLaTeclaLlegaSoloA(1, "a");
  enfocadaLaTeclaLlegaSoloA(fuera, "b");
  enfocadaLaTeclaLlegaSoloA(1, "c");
}

TEST_F(ConTmux, unPaneCuyoProgramaNoConoceSuEnchufeEstaEnElDeCostumbre) {
  escritorio.variables["TMUX_TMPDIR"] = escritorio.casa().dentro("r");
  auto const claude = escritorio.casa().dentro("propios/claude");
  auto const corrida =
      escritorio.correr({"tmux", "-f", "/dev/null", "new-session", "-d", "exec env -u TMUX " + claude});
  ASSERT_EQ(corrida.codigo, 0) << corrida.error;
  anotarElNuevo();
  ASSERT_EQ(enfocar(0).codigo, 0);
  ASSERT_TRUE(esperarA([&] { return escritorio.correr({"xdotool", "getactivewindow"}).codigo == 0; }));
  laTeclaLlegaSoloA(0, "a");
}

TEST_F(ConTmux, unClienteSinVentanaAquiSeDiceYSigueDondeEstaba) {
  auto const uno = pane({"new-session", "-d", "-s", "uno"});
  auto const dos = pane({"new-session", "-d", "-s", "dos"});
  dobles::Pseudoterminal const lejos{
      {"/usr/bin/tmux", "-S", enchufe, "attach", "-t", "uno"}, {"TERM=xterm", "LANG=C.UTF-8"}, "/"};
  ASSERT_TRUE(esperarA([&] { return clientes() == 1; }));
  for (auto const cual : {uno, dos}) {
    auto const corrida = enfocar(cual);
    EXPECT_EQ(corrida.codigo, 1);
    EXPECT_TRUE(corrida.error.starts_with("zorve-terminal: The tmux session on " + panes[cual].tty.substr(5) +
                                          " is shown on pts/"))
        << corrida.error;
    EXPECT_EQ(std::ranges::count(corrida.error, '\n'), 1);
  }
  EXPECT_EQ(tmux({"list-clients", "-F", "#{client_session}"}).salida, "uno\n");
  cliente("xterm", "uno");
  enfocadaLaTeclaLlegaSoloA(dos, "a");
}

TEST_F(ConTmux, unaTerminalDesconocidaQueEmpezoEnUnPaneNoEsUnPane) {
  auto const uno = pane({"new-session", "-d", "-s", "uno"});
  auto const otraterm = escritorio.casa().dentro("propios/otraterm");
  std::filesystem::copy_file("/usr/bin/xterm", otraterm);
  ASSERT_EQ(
      tmux({"new-window", "-d", "-t", "uno", otraterm + " -e " + escritorio.casa().dentro("propios/claude")})
          .codigo,
      0);
  anotarElNuevo();
  ASSERT_EQ(tmux({"new-window", "-d", "-t", "uno", otraterm + " -e tmux -S '" + enchufe + "' attach -t uno"})
                .codigo,
            0);
  ASSERT_TRUE(esperarA([&] { return clientes() == 1; }));
  auto const corrida = enfocar(uno);
  EXPECT_EQ(corrida.codigo, 1);
  EXPECT_TRUE(corrida.error.contains("in no window that Zorve can bring to the front here")) << corrida.error;
  enfocadaLaTeclaLlegaSoloA(1, "a");
}

TEST_F(ConTmux, unServidorParadoSeDiceAntesDeDiezSegundosYDespuesSirve) {
  auto const uno = pane({"new-session", "-d", "-s", "uno"});
  cliente("xterm", "uno");
  auto const servidor = std::stoi(tmux({"display-message", "-p", "#{pid}"}).salida);
  parar(servidor);
  auto const empieza = std::chrono::steady_clock::now();
  auto const corrida = enfocar(uno);
  EXPECT_LT(std::chrono::steady_clock::now() - empieza, std::chrono::seconds{10});
  EXPECT_EQ(corrida.codigo, 1);
  EXPECT_EQ(corrida.error, "zorve-terminal: The tmux server on " + enchufe +
                               " did not answer in two seconds. Try again once it goes on.\n");
  ASSERT_EQ(::kill(servidor, SIGCONT), 0);
  enfocadaLaTeclaLlegaSoloA(uno, "a");
}

TEST_F(ConTmux, unaTerminalParadaNoDetieneANadie) {
  auto const uno = pane({"new-session", "-d", "-s", "uno"});
  cliente("xterm", "uno");
  auto const ventana = escritorio.correr({"xdotool", "search", "--onlyvisible", "--class", "xterm"}).salida;
  parar(std::stoi(
      escritorio.correr({"xdotool", "getwindowpid", ventana.substr(0, ventana.find('\n'))}).salida));
  auto const empieza = std::chrono::steady_clock::now();
  auto const corrida = enfocar(uno);
  EXPECT_LT(std::chrono::steady_clock::now() - empieza, std::chrono::seconds{10});
  EXPECT_EQ(corrida.codigo, 0) << "its window is in front, though it draws nothing: " << corrida.error;
}

}  // namespace
}  // namespace zorve::pruebas
