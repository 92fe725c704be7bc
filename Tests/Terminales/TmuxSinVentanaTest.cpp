#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <string>

#include "Dobles/Pseudoterminal.h"
#include "Terminales/ConTmux.h"

namespace zorve::pruebas {
namespace {

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
  auto const otraterm = escritorio.home().dentro("propios/otraterm");
  std::filesystem::copy_file("/usr/bin/xterm", otraterm);
  ASSERT_EQ(
      tmux({"new-window", "-d", "-t", "uno", otraterm + " -e " + escritorio.home().dentro("propios/claude")})
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
