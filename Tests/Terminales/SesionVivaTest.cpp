#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

#include "Terminales/Escritorio.h"
#include "ZorveTerminal/SesionEnTty.h"

namespace zorve::pruebas {
namespace {

using Palabras = std::vector<std::string>;

constexpr char const* sesion = "11111111-aaaa-4bbb-8ccc-000000000001";

/// zorvectl opens running sessions of real terminals. The stand-in for the agent writes down what it is
/// typed.
class SesionViva : public testing::Test {
 protected:
  void TearDown() override {
    for (auto const pid : parados) ::kill(pid, SIGCONT);
  }

  [[nodiscard]] dobles::Corrida zorvectl(Palabras palabras) const {
    palabras.insert(palabras.begin(), ZORVECTL);
    return escritorio.correr(std::move(palabras));
  }
  /// That process is the running session.
  void registrar(pid_t pid) const {
    escritorio.home().escribir(std::string{".claude/projects/p/"} + sesion + ".jsonl", "{}\n");
    escritorio.home().escribir(".claude/history.jsonl",
                               R"({"display":"hola","timestamp":1700000000000,"project":")" +
                                   escritorio.home().ruta() + R"(","sessionId":")" + sesion + "\"}\n");
    escritorio.home().escribir(".claude/sessions/1.json", "{\"pid\":" + std::to_string(pid) +
                                                              R"(,"sessionId":")" + sesion + R"(","cwd":")" +
                                                              escritorio.home().ruta() + "\"}\n");
  }
  /// A window of xterm with a session in it.
  Anotado enXterm() { return enVentanaDe("xterm"); }
  Anotado enVentanaDe(std::string const& terminal) {
    auto const corrida = escritorio.ayudante({"open", terminal, escritorio.home().ruta(), "claude"});
    EXPECT_EQ(corrida.codigo, 0) << corrida.error;
    return laNueva();
  }
  Anotado enTmux() {
    auto const corrida =
        escritorio.correr({"tmux", "-f", "/dev/null", "-S", enchufe, "new-session", "-d", claude});
    EXPECT_EQ(corrida.codigo, 0) << corrida.error;
    return laNueva();
  }
  Anotado laNueva() {
    for (auto const& una : escritorio.anotados(vistas.size() + 1)) {
      if (std::ranges::find(vistas, una.pid) != vistas.end()) continue;
      vistas.push_back(una.pid);
      return una;
    }
    ADD_FAILURE() << "no session began";
    return {};
  }

  /// One line on standard error, status 1, in less than ten seconds.
  void abrirDice(std::string const& frase) const {
    auto const empieza = std::chrono::steady_clock::now();
    auto const corrida = zorvectl({"open", "1111", "--terminal", "xterm"});
    EXPECT_LT(std::chrono::steady_clock::now() - empieza, std::chrono::seconds{10});
    EXPECT_EQ(corrida.codigo, 1);
    EXPECT_EQ(corrida.salida, "");
    EXPECT_TRUE(corrida.error.contains(frase)) << corrida.error;
    EXPECT_EQ(std::ranges::count(corrida.error, '\n'), 1) << corrida.error;
  }
  void abiertaLaTeclaLlegaA(Anotado const& una, std::string const& tecla) const {
    registrar(una.pid);
    auto const corrida = zorvectl({"open", "1111", "--terminal", "xterm"});
    ASSERT_EQ(corrida.codigo, 0) << corrida.error;
    EXPECT_EQ(corrida.salida + corrida.error, "");
    ASSERT_TRUE(esperarA([&] { return escritorio.correr({"xdotool", "getactivewindow"}).codigo == 0; }));
    ASSERT_EQ(escritorio.correr({"xdotool", "key", tecla, "Return"}).codigo, 0);
    EXPECT_TRUE(esperarA([&] { return teclasDe(una.pid).ends_with(tecla + "\n"); }));
    for (auto const pid : vistas) EXPECT_EQ(teclasDe(pid).contains(tecla), pid == una.pid);
  }
  [[nodiscard]] std::string teclasDe(pid_t pid) const {
    return leerArchivoDePrueba(escritorio.home().dentro("teclas/" + std::to_string(pid)));
  }
  void parar(pid_t pid) {
    parados.push_back(pid);
    ASSERT_EQ(::kill(pid, SIGSTOP), 0);
  }

  Escritorio escritorio{Escritorio::Pantalla::x11};
  std::string claude = escritorio.home().dentro("propios/claude");
  std::string enchufe = escritorio.home().dentro("r/tmux");
  std::vector<pid_t> vistas;
  std::vector<pid_t> parados;
};

TEST_F(SesionViva, openTraeSuVentanaSuPaneDeTmuxOUnaVentanaNuevaParaEl) {
  auto const una = enXterm();
  auto const otra = enXterm();
  auto const pane = enTmux();
  abiertaLaTeclaLlegaA(una, "a");
  abiertaLaTeclaLlegaA(otra, "b");
  abiertaLaTeclaLlegaA(pane, "c");
  abiertaLaTeclaLlegaA(una, "d");
  abiertaLaTeclaLlegaA(pane, "e");
}

TEST_F(SesionViva, tmuxNiSeListaNiSeElige) {
  EXPECT_FALSE(zorvectl({"terminals"}).salida.contains("tmux"));
  EXPECT_FALSE(zorvectl({"terminals", "--json"}).salida.contains("tmux"));
  EXPECT_EQ(zorvectl({"choose", "tmux"}).codigo, 2);
  EXPECT_EQ(zorvectl({"plan", "--tty", "pts/1", "--terminal", "tmux"}).codigo, 2);
}

TEST_F(SesionViva, siSuProcesoYaNoExisteSeReabre) {
  auto const una = enXterm();
  registrar(una.pid);
  ASSERT_EQ(::kill(una.pid, SIGKILL), 0);
  ASSERT_TRUE(esperarA([&] { return ::kill(una.pid, 0) != 0; }));
  auto const corrida = zorvectl({"open", "1111", "--terminal", "xterm"});
  ASSERT_EQ(corrida.codigo, 0) << corrida.error;
  EXPECT_EQ(laNueva().args, (Palabras{"-r", sesion}));
}

TEST_F(SesionViva, siSuPidEsAhoraDeOtroSinTerminalSeDice) {
  registrar(escritorio.empezar({"setsid", "sleep", "60"}));
  abrirDice("The session is alive but has no controlling terminal");
}

TEST_F(SesionViva, siSuTerminalSeHaIdoSeDice) {
  escritorio.programa("claude",
                      "trap '' HUP\n"
                      "printf '.\\n\\0%s\\0%s\\0' \"$(tty)\" \"$$\" >\"$HOME/anotados/t.0\"\n"
                      "mv \"$HOME/anotados/t.0\" \"$HOME/anotados/$$\"\n"
                      "exec sleep 60\n");
  auto const una = enXterm();
  registrar(una.pid);
  ASSERT_EQ(escritorio.correr({"xdotool", "getactivewindow", "windowkill"}).codigo, 0);
  ASSERT_TRUE(esperarA([&] { return !std::filesystem::exists(una.tty); }));
  abrirDice("The session is alive but has no controlling terminal");
}

TEST_F(SesionViva, siElServidorDeTmuxNoContestaSeDice) {
  registrar(enTmux().pid);
  parar(std::stoi(escritorio.correr({"tmux", "-S", enchufe, "display-message", "-p", "#{pid}"}).salida));
  abrirDice("The tmux server on " + enchufe + " did not answer");
}

TEST_F(SesionViva, siLaTerminalALaQueHayQuePreguntarNoContestaSeDice) {
  auto const una = enVentanaDe("org.kde.konsole");
  registrar(una.pid);
  parar(ayudante::liderDelTty(una.tty).value_or(ayudante::Proceso{}).padre);
  abrirDice("Konsole does not answer, so its session on " + una.tty.substr(5) + " could not be shown.");
}

TEST_F(SesionViva, siElGestorDeVentanasNoContestaSeDice) {
  auto const detras = enXterm();
  auto const delante = enXterm();
  ASSERT_EQ(escritorio.ayudante({"focus", "xterm", delante.tty}).codigo, 0);
  registrar(detras.pid);
  parar(escritorio.gestorDeVentanas());
  abrirDice("did not bring the xterm window to the front");
}

}  // namespace
}  // namespace zorve::pruebas
