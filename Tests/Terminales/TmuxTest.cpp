#include <cstdint>
#include <string>

#include "Terminales/ConTmux.h"
#include "ZorveTerminal/Sway.h"

namespace zorve::pruebas {
namespace {

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
         ayudante::ventanasDelArbol(escritorio.correr({"swaymsg", "-r", "-t", "get_tree"}).salida)) {
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
  ASSERT_EQ(escritorio.correr({"xdotool", "getactivewindow", "windowminimize", "--sync"}).codigo, 0);
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
  auto const dentro = escritorio.home().dentro("r/dentro");
  auto const fuera = pane({"new-session", "-d", "-s", "fuera"});
  auto const claude = escritorio.home().dentro("propios/claude");
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
  escritorio.variables["TMUX_TMPDIR"] = escritorio.home().dentro("r");
  auto const claude = escritorio.home().dentro("propios/claude");
  auto const corrida =
      escritorio.correr({"tmux", "-f", "/dev/null", "new-session", "-d", "exec env -u TMUX " + claude});
  ASSERT_EQ(corrida.codigo, 0) << corrida.error;
  anotarElNuevo();
  ASSERT_EQ(enfocar(0).codigo, 0);
  ASSERT_TRUE(esperarA([&] { return escritorio.correr({"xdotool", "getactivewindow"}).codigo == 0; }));
  laTeclaLlegaSoloA(0, "a");
}

}  // namespace
}  // namespace zorve::pruebas
