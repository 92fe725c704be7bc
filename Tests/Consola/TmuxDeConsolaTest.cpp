#include <csignal>

#include "Consola/EnConsola.h"
#include "Dobles/Correr.h"
#include "ZorveCore/Texto/Texto.h"

namespace zorve::pruebas {
namespace {

using testing::HasSubstr;

/// A tmux server of the test's own, which a client on a pseudoterminal shows.
class TmuxDeConsola : public EnConsola {
 protected:
  void SetUp() override {
    if (dobles::correr({"/bin/sh", "-c", "command -v tmux"}).codigo != 0) GTEST_SKIP() << "tmux is not here";
    home.carpeta().carpeta("tmux");
    conClaude("echo \"corre $*\"; while :; do sleep 1; done");
  }
  void TearDown() override {
    if (!enchufe().empty()) (void)tmux({"kill-server"});
  }

  [[nodiscard]] std::string enchufe() const {
    return enElHome("tmux/tmux-" + std::to_string(::getuid()) + "/default");
  }
  [[nodiscard]] dobles::Corrida tmux(std::vector<std::string> palabras) const {
    palabras.insert(palabras.begin(),
                    {"/usr/bin/env", "-u", "TMUX", "-u", "DISPLAY", "-u", "WAYLAND_DISPLAY",
                     "HOME=" + home.ruta(), "TMUX_TMPDIR=" + enElHome("tmux"), "SHELL=/bin/bash", "tmux"});
    return dobles::correr(palabras);
  }
  /// Starts the server with a session and gives the first process of its one pane.
  pid_t servidor(std::string const& orden, std::string const& conf = "/dev/null") {
    auto const corrida = tmux({"-f", conf, "new-session", "-d", "-x", "80", "-y", "23", "-s", "home", orden});
    EXPECT_EQ(corrida.codigo, 0) << corrida.error;
    return std::stoi(tmux({"display-message", "-p", "-t", "home:", "#{pane_pid}"}).salida);
  }
  /// Another window, in the background, which shows a text; gives its first process.
  pid_t ventana(std::string const& texto) {
    auto const corrida = tmux({"new-window", "-d", "-P", "-F", "#{pane_pid}", "-t",
                               "home:", "echo " + texto + "; while :; do sleep 1; done"});
    EXPECT_EQ(corrida.codigo, 0) << corrida.error;
    return std::stoi(corrida.salida);
  }
  void correLaPrimera(pid_t pid) {
    home.viva("1.json", R"({"pid":)" + std::to_string(pid) + R"(,"sessionId":")" + id(1) +
                            R"(","cwd":"/v","status":"busy"})");
  }
  /// Somebody sits before the server.
  PantallaVirtual& cliente() {
    auto como = con();
    como.palabras = {"/usr/bin/env", "tmux", "attach", "-t", "home"};
    como.entorno.push_back("TMUX_TMPDIR=" + enElHome("tmux"));
    como.entorno.emplace_back("LANG=C.UTF-8");
    pantalla = std::make_unique<PantallaVirtual>(como);
    return *pantalla;
  }
  /// In the first pane, from now on.
  void poner(std::string const& orden) const {
    auto const corrida = tmux({"respawn-pane", "-k", "-t", "home:0", orden});
    EXPECT_EQ(corrida.codigo, 0) << corrida.error;
  }
  /// Presses the popup's keys until it is there: a client that has just come may miss the first.
  [[nodiscard]] bool emerge() {
    for (int i = 0; i < 5; ++i) {
      pantalla->escribir("\x02z");
      if (pantalla->esperarA([&] { return pantalla->donde("1/3").has_value(); }, std::chrono::seconds{5}))
        return true;
    }
    return false;
  }
  static constexpr auto nada = "echo debajo; while :; do sleep 1; done";
  static std::string panel(std::string const& opciones = "") {
    return std::string{ZORVECTL} + " panel" + opciones + "; echo acabo $?; while :; do sleep 1; done";
  }
};

TEST_F(TmuxDeConsola, seDibujaEntero) {
  servidor(panel());
  ASSERT_TRUE(cliente().esperar("1/3"));
  auto const visto = tmux({"capture-pane", "-p", "-t", "home:"}).salida;
  EXPECT_THAT(visto, HasSubstr("▌ ● Rewrite the history parser"));
  EXPECT_THAT(visto, HasSubstr("  · Añadir pruebas 日本語 e\u0301"));
  EXPECT_THAT(visto, HasSubstr("↑↓ move  ↩ open"));
}

TEST_F(TmuxDeConsola, elClienteQuePideCambiaALaSesionQueCorre) {
  servidor(nada);
  correLaPrimera(ventana("aqui corre"));
  poner(panel());
  auto& vista = cliente();
  ASSERT_TRUE(vista.esperar("1/3"));
  vista.escribir("\r");
  EXPECT_TRUE(vista.esperar("aqui corre"));
  EXPECT_THAT(tmux({"display-message", "-p", "-t", "home:", "#{window_index}"}).salida, HasSubstr("1"));
  EXPECT_THAT(tmux({"capture-pane", "-p", "-t", "home:0"}).salida, HasSubstr("acabo 0"));
}

TEST_F(TmuxDeConsola, desdeFueraSeUneALaSesionQueCorre) {
  correLaPrimera(servidor("echo aqui corre; while :; do sleep 1; done"));
  auto como = con();
  como.entorno.push_back("TMUX_TMPDIR=" + enElHome("tmux"));
  como.entorno.emplace_back("LANG=C.UTF-8");
  auto& vista = abrir(como);
  vista.escribir("\r");
  EXPECT_TRUE(vista.esperar("aqui corre"));
  EXPECT_EQ(tmux({"list-clients", "-F", "x"}).salida, "x\n");
  vista.escribir(
      "\x02"
      "d");
  EXPECT_EQ(vista.terminar(), 0);
}

TEST_F(TmuxDeConsola, unaVentanaEmergenteAbreLaAcabadaEnUnaVentanaYSeCierra) {
  auto const conf =
      home.carpeta().escribir("tmux.conf", std::string{"bind-key z display-popup -E -w 80% -h 75% \""} +
                                               ZORVECTL + " panel --popup\"\n");
  servidor(nada, conf);
  auto& vista = cliente();
  ASSERT_TRUE(vista.esperar("debajo"));
  ASSERT_TRUE(emerge()) << testing::PrintToString(vista.lineas());
  vista.escribir("icon");
  ASSERT_TRUE(vista.esperar("1/1"));
  vista.escribir("\r");
  EXPECT_TRUE(vista.esperarA([&] { return vista.donde("corre -r " + id(3)) && !vista.donde("1/1"); }));
  EXPECT_THAT(tmux({"display-message", "-p", "-t", "home:", "#{window_index} #{pane_current_path}"}).salida,
              "1 " + enElHome("src/icon") + "\n");
}

TEST_F(TmuxDeConsola, unaVentanaEmergenteCambiaALaQueCorre) {
  auto const conf =
      home.carpeta().escribir("tmux.conf", std::string{"bind-key z display-popup -E -w 80% -h 75% \""} +
                                               ZORVECTL + " panel --popup\"\n");
  servidor(nada, conf);
  correLaPrimera(ventana("aqui corre"));
  auto& vista = cliente();
  ASSERT_TRUE(vista.esperar("debajo"));
  ASSERT_TRUE(emerge()) << testing::PrintToString(vista.lineas());
  vista.escribir("\r");
  EXPECT_TRUE(vista.esperarA([&] { return vista.donde("aqui corre") && !vista.donde("1/3"); }));
}

TEST_F(TmuxDeConsola, laCopiaQuedaEnElBufferDeTmux) {
  servidor(panel());
  auto& vista = cliente();
  ASSERT_TRUE(vista.esperar("1/3"));
  vista.escribir("\x19");
  ASSERT_TRUE(vista.esperar("Copied: " + id(1)));
  EXPECT_TRUE(vista.esperarA([&] { return tmux({"show-buffer"}).salida.starts_with(id(1)); }));
  EXPECT_FALSE(vista.donde("OSC 52"));
}

TEST_F(TmuxDeConsola, conPrintDentroDeTmuxSaleElCambio) {
  servidor(nada);
  correLaPrimera(ventana("aqui corre"));
  poner(std::string{"x=$("} + ZORVECTL +
        " panel --print); echo \"[$x]\"; eval \"$x\"; while :; do sleep 1; done");
  auto& vista = cliente();
  ASSERT_TRUE(vista.esperar("1/3"));
  vista.escribir("\r");
  EXPECT_TRUE(vista.esperar("aqui corre"));
  EXPECT_THAT(tmux({"capture-pane", "-J", "-p", "-t", "home:0"}).salida,
              HasSubstr(" switch-client -t '$0:@1.%1']"));
}

}  // namespace
}  // namespace zorve::pruebas
