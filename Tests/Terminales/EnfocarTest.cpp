#include <gtest/gtest.h>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <string>

#include "Dobles/Pseudoterminal.h"
#include "Terminales/Sesiones.h"
#include "ZorveTerminal/SesionEnTty.h"

namespace zorve::pruebas {
namespace {

class DosVentanas : public DeUnTerminal {
 protected:
  explicit DosVentanas(Escritorio::Pantalla pantalla = Escritorio::Pantalla::x11,
                       std::string const& gestor = "openbox")
      : dos{GetParam(), pantalla, gestor} {}

  [[nodiscard]] bool abrirlas() { return dos.abrirVentana() && dos.abrirVentana(); }

  void enTodasPartes() {
    dos.laTeclaLlegaSoloA(0, "a");
    dos.laTeclaLlegaSoloA(1, "b");
    ASSERT_TRUE(dos.hacer({"xdotool", "getactivewindow", "windowminimize", "--sync"}));
    dos.laTeclaLlegaSoloA(1, "c");
    ASSERT_TRUE(dos.hacer({"xdotool", "set_desktop", "1"}));
    ASSERT_TRUE(dos.hacer(
        {"timeout", "10", "sh", "-c", "until [ \"$(xdotool get_desktop)\" = 1 ]; do sleep 0.05; done"}));
    dos.laTeclaLlegaSoloA(0, "d");
  }

  Sesiones dos;
};

/// Under another window manager.
class DosVentanasLargo : public DosVentanas {
 protected:
  DosVentanasLargo() : DosVentanas{Escritorio::Pantalla::x11, "xfwm4"} {}
};

INSTANTIATE_TEST_SUITE_P(Linux, DosVentanasLargo, testing::ValuesIn(enfocables(SesionGrafica::x11)),
                         nombreDelTerminal);

INSTANTIATE_TEST_SUITE_P(Linux, DosVentanas, testing::ValuesIn(enfocables(SesionGrafica::x11)),
                         nombreDelTerminal);

/// The same under sway.
class DosVentanasDeSway : public DosVentanas {
 protected:
  DosVentanasDeSway() : DosVentanas{Escritorio::Pantalla::wayland} {}
};

INSTANTIATE_TEST_SUITE_P(Linux, DosVentanasDeSway, testing::ValuesIn(enfocables(SesionGrafica::sway)),
                         nombreDelTerminal);

TEST_P(DosVentanasDeSway, laTeclaLlegaALaSesionEnfocadaTambienDesdeOtroEspacio) {
  ASSERT_TRUE(abrirlas());
  dos.laTeclaLlegaSoloA(0, "a");
  dos.laTeclaLlegaSoloA(1, "b");
  ASSERT_TRUE(dos.hacer({"swaymsg", "workspace", "9"}));
  dos.laTeclaLlegaSoloA(0, "c");
}

TEST(EnfocarEnSway, lasVentanasDelServidorDeFootSeDistinguenPorSuTitulo) {
  auto const& foot = *fichaDeLinux("foot");
  if (!estaAqui(foot)) GTEST_SKIP() << noEstaAqui(foot);
  Sesiones dos{foot, Escritorio::Pantalla::wayland};
  dos.escritorio.empezar({"foot", "--server"});
  ASSERT_TRUE(esperarA([&] {
    auto const enchufe =
        dos.escritorio.home().dentro("r/foot-" + dos.escritorio.variables.at("WAYLAND_DISPLAY") + ".sock");
    return std::filesystem::exists(enchufe);
  }));
  ASSERT_TRUE(dos.abrirVentana() && dos.abrirVentana());
  ASSERT_EQ(dos.anfitrionDe(0), dos.anfitrionDe(1));
  dos.laTeclaLlegaSoloA(0, "a");
  dos.laTeclaLlegaSoloA(1, "b");
  ASSERT_TRUE(dos.hacer({"swaymsg", "workspace", "9"}));
  dos.laTeclaLlegaSoloA(0, "c");
}

TEST_P(DosVentanas, laTeclaLlegaALaSesionEnfocadaDelanteDetrasMinimizadaYEnOtroEscritorio) {
  ASSERT_TRUE(abrirlas());
  enTodasPartes();
}

TEST_P(DosVentanasLargo, lasMismasConOtroGestorDeVentanas) {
  ASSERT_TRUE(abrirlas());
  enTodasPartes();
}

TEST_P(DosVentanas, sinSuVentanaLaSesionYaNoSeEncuentra) {
  ASSERT_TRUE(abrirlas());
  auto const anfitrion = dos.anfitrionDe(0);
  ASSERT_GT(anfitrion, 1);
  ASSERT_EQ(::kill(anfitrion, SIGKILL), 0);
  ASSERT_TRUE(esperarA([&] { return dos.enfocar(0).codigo != 0; }));
  auto const corrida = dos.enfocar(0);
  EXPECT_EQ(corrida.codigo, 1);
  EXPECT_EQ(corrida.error, "zorve-terminal: Zorve found no " + GetParam().nombre + " session on " +
                               dos.sesiones[0].tty.substr(5) +
                               ". The Claude session is still alive, but its window no longer exists.\n");
}

TEST(EnfocarEnX, unaVentanaQueDiceSerDeLaSesionNoRecibeElTeclado) {
  auto const& xterm = *fichaDeLinux("xterm");
  if (!estaAqui(xterm)) GTEST_SKIP() << noEstaAqui(xterm);
  Sesiones una{xterm, Escritorio::Pantalla::x11};
  ASSERT_TRUE(una.abrirVentana());
  auto const antes = una.ventanas().size();
  una.escritorio.empezar({"xterm", "-T", "mentirosa", "-e", "sh", "-c", "exec sleep 600"});
  ASSERT_TRUE(esperarA([&] { return una.ventanas().size() > antes; }));
  auto const lider = ayudante::liderDelTty(una.sesiones[0].tty);
  ASSERT_TRUE(lider);
  for (auto const pid : {lider->pid, lider->padre}) {
    ASSERT_TRUE(una.hacer({"xprop", "-name", "mentirosa", "-f", "_NET_WM_PID", "32c", "-set", "_NET_WM_PID",
                           std::to_string(pid)}));
    una.laTeclaLlegaSoloA(0, pid == lider->pid ? "a" : "b");
    EXPECT_FALSE(
        una.escritorio.correr({"xdotool", "getactivewindow", "getwindowname"}).salida.contains("mentirosa"));
  }
}

TEST(Enfocar, unTtyQueNoExisteSeDiceEnUnaFrase) {
  Escritorio const escritorio{Escritorio::Pantalla::x11};
  for (auto const* const tty : {"pts/99999", "", "../etc/passwd", "null", "\x1b[31m"}) {
    auto const corrida = escritorio.ayudante({"focus", "xterm", tty});
    EXPECT_EQ(corrida.codigo, 1) << tty;
    EXPECT_TRUE(corrida.error.starts_with("zorve-terminal: Zorve found no xterm session on ")) << tty;
  }
}

TEST(Enfocar, unServidorQueNoContestaNoDetieneANadieMasDeDiezSegundos) {
  Escritorio escritorio{Escritorio::Pantalla::ninguna};
  int const oyente = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  ASSERT_GE(oyente, 0);
  sockaddr_in direccion{};
  direccion.sin_family = AF_INET;
  direccion.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t largo = sizeof direccion;
  ASSERT_EQ(::bind(oyente, reinterpret_cast<sockaddr*>(&direccion), largo), 0);
  ASSERT_EQ(::listen(oyente, 4), 0);
  ASSERT_EQ(::getsockname(oyente, reinterpret_cast<sockaddr*>(&direccion), &largo), 0);
  escritorio.variables["DISPLAY"] = "127.0.0.1:" + std::to_string(ntohs(direccion.sin_port) - 6000);
  dobles::Pseudoterminal terminal{
      {"/bin/sh", "-c", "echo [$(tty)]; read -r linea"}, {"PATH=/usr/bin:/bin"}, "/"};
  ASSERT_TRUE(terminal.esperar("]"));
  auto const tty = terminal.pantalla().substr(1, terminal.pantalla().find(']') - 1);
  auto const empieza = std::chrono::steady_clock::now();
  auto const corrida = escritorio.ayudante({"focus", "xterm", tty});
  EXPECT_LT(std::chrono::steady_clock::now() - empieza, std::chrono::seconds{10});
  EXPECT_EQ(corrida.codigo, 1);
  EXPECT_EQ(corrida.error, "zorve-terminal: the desktop did not answer in time\n");
  ::close(oyente);
}

}  // namespace
}  // namespace zorve::pruebas
