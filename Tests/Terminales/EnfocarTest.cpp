#include <gtest/gtest.h>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <iostream>
#include <string>
#include <vector>

#include "Dobles/Pseudoterminal.h"
#include "Terminales/Escritorio.h"
#include "ZorveCore/FichaDeTerminal.h"
#include "ZorveTerminal/Sway.h"

namespace zorve::pruebas {
namespace {

std::vector<FichaDeTerminal> enfocables(SesionGrafica sesion) {
  std::vector<FichaDeTerminal> todas;
  std::ranges::copy_if(fichasDeLinux(), std::back_inserter(todas), [sesion](auto const& ficha) {
    return std::ranges::find(ficha.enfocableEn, sesion) != ficha.enfocableEn.end();
  });
  return todas;
}

std::string nombreDelCaso(testing::TestParamInfo<FichaDeTerminal> const& caso) {
  std::string nombre;
  std::ranges::copy_if(caso.param.identificador, std::back_inserter(nombre),
                       [](char letra) { return letra != '.' && letra != '-'; });
  return nombre;
}

/// Two windows of one terminal, each with a session that writes down the lines it is typed.
class DosVentanas : public testing::TestWithParam<FichaDeTerminal> {
 protected:
  /// False when the terminal is not installed here.
  [[nodiscard]] bool abrirlas() {
    if (!programaInstalado(GetParam().programas.front())) {
      std::cout << "skipped: " << GetParam().nombre << " is not installed here\n";
      return false;
    }
    for (std::size_t i = 1; i <= 2; ++i) {
      auto const corrida =
          escritorio.ayudante({"open", GetParam().identificador, escritorio.casa().ruta(), "claude"});
      EXPECT_EQ(corrida.codigo, 0) << corrida.error;
      sesiones = escritorio.anotados(i);
      EXPECT_EQ(sesiones.size(), i);
    }
    return sesiones.size() == 2;
  }

  [[nodiscard]] dobles::Corrida enfocar(Anotado const& sesion) const {
    return escritorio.ayudante({"focus", GetParam().identificador, sesion.tty});
  }

  [[nodiscard]] std::string teclasDe(Anotado const& sesion) const {
    return leerArchivoDePrueba(escritorio.casa().dentro("teclas/" + std::to_string(sesion.pid)));
  }

  /// Focuses the session, presses a key, and sees it arrive there and nowhere else.
  void laTeclaLlegaSoloA(std::size_t cual, std::string const& tecla) {
    auto const corrida = enfocar(sesiones[cual]);
    ASSERT_EQ(corrida.codigo, 0) << corrida.error;
    auto const otraAntes = teclasDe(sesiones[1 - cual]);
    ASSERT_EQ(escritorio.correr({"xdotool", "key", tecla, "Return"}).codigo, 0);
    EXPECT_TRUE(esperarA([&] { return teclasDe(sesiones[cual]).ends_with(tecla + "\n"); }))
        << teclasDe(sesiones[cual]);
    EXPECT_EQ(teclasDe(sesiones[1 - cual]), otraAntes);
  }

  explicit DosVentanas(Escritorio::Pantalla pantalla = Escritorio::Pantalla::x11) : escritorio{pantalla} {}

  Escritorio const escritorio;
  std::vector<Anotado> sesiones;
};

INSTANTIATE_TEST_SUITE_P(Linux, DosVentanas, testing::ValuesIn(enfocables(SesionGrafica::x11)),
                         nombreDelCaso);

/// The same under sway, whose own word is taken for what has the keyboard.
class DosVentanasDeSway : public DosVentanas {
 protected:
  DosVentanasDeSway() : DosVentanas{Escritorio::Pantalla::wayland} {}

  /// The identifier of the window that has the keyboard, or the empty text.
  [[nodiscard]] std::string enfocada() const {
    auto const arbol = escritorio.correr({"swaymsg", "-r", "-t", "get_tree"}).salida;
    for (auto const& ventana : ventanasDelArbol(arbol)) {
      if (ventana.enfocada) return std::to_string(ventana.id);
    }
    return {};
  }
};

INSTANTIATE_TEST_SUITE_P(Linux, DosVentanasDeSway, testing::ValuesIn(enfocables(SesionGrafica::sway)),
                         nombreDelCaso);

TEST_P(DosVentanasDeSway, cadaSesionTieneSuVentanaTambienDesdeOtroEspacio) {
  if (!abrirlas()) return;
  ASSERT_EQ(enfocar(sesiones[0]).codigo, 0);
  auto const primera = enfocada();
  ASSERT_EQ(enfocar(sesiones[1]).codigo, 0);
  EXPECT_NE(primera, enfocada());
  EXPECT_FALSE(primera.empty());
  ASSERT_EQ(escritorio.correr({"swaymsg", "workspace", "9"}).codigo, 0);
  ASSERT_EQ(enfocada(), "");
  auto const corrida = enfocar(sesiones[0]);
  EXPECT_EQ(corrida.codigo, 0) << corrida.error;
  EXPECT_EQ(enfocada(), primera);
}

TEST_P(DosVentanas, laTeclaLlegaALaSesionEnfocadaDelanteDetrasMinimizadaYEnOtroEscritorio) {
  if (!abrirlas()) return;
  laTeclaLlegaSoloA(0, "a");
  laTeclaLlegaSoloA(1, "b");
  ASSERT_EQ(escritorio.correr({"xdotool", "getactivewindow", "windowminimize"}).codigo, 0);
  laTeclaLlegaSoloA(1, "c");
  ASSERT_EQ(escritorio.correr({"xdotool", "set_desktop", "1"}).codigo, 0);
  laTeclaLlegaSoloA(0, "d");
}

TEST_P(DosVentanas, unaVentanaCerradaYaNoSeEncuentra) {
  if (!abrirlas()) return;
  ASSERT_EQ(::kill(sesiones[0].pid, SIGKILL), 0);
  ASSERT_EQ(enfocar(sesiones[0]).codigo, 0) << "the shell stays in its window";
  ASSERT_EQ(escritorio.correr({"xdotool", "getactivewindow", "windowkill"}).codigo, 0);
  auto const tty = sesiones[0].tty.substr(5);
  ASSERT_TRUE(esperarA([&] { return enfocar(sesiones[0]).codigo != 0; }));
  auto const corrida = enfocar(sesiones[0]);
  EXPECT_EQ(corrida.codigo, 1);
  EXPECT_EQ(corrida.error, "zorve-terminal: Zorve found no " + GetParam().nombre + " session on " + tty +
                               ". The Claude session is still alive, but its window no longer exists.\n");
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
