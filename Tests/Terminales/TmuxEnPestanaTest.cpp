#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "Terminales/Sesiones.h"

namespace zorve::pruebas {
namespace {

using Palabras = std::vector<std::string>;

/// A window with two tabs: a session in the first, a client of tmux, which sets titles, in the second. The
/// sessions that follow the first are the panes of its server.
class TmuxEnPestana : public testing::TestWithParam<std::string> {
 protected:
  void SetUp() override {
    auto const& ficha = *fichaDeLinux(GetParam());
    if (!estaAqui(ficha)) GTEST_SKIP() << noEstaAqui(ficha);
  }

  [[nodiscard]] bool abrirlas() {
    auto const claude = s.escritorio.home().dentro("propios/claude");
    return s.abrirVentana() && s.hacer(tmux({"-f", "/dev/null", "new-session", "-d", claude})) &&
           s.esperarOtra() && s.hacer(tmux({"new-window", claude})) && s.esperarOtra() &&
           s.hacer(tmux({"set-option", "-g", "set-titles", "on"})) && abrirPestana() &&
           esperarA([&] { return !s.escritorio.correr(tmux({"list-clients"})).salida.empty(); });
  }
  [[nodiscard]] Palabras tmux(Palabras palabras) const {
    palabras.insert(palabras.begin(), {"tmux", "-S", enchufe});
    return palabras;
  }

  [[nodiscard]] bool abrirPestana() const {
    if (GetParam() == "org.kde.konsole") return abrirPestanaDeKonsole();
    return s.hacer({"env", "GNOME_TERMINAL_SCREEN=" + s.variableDe(0, "GNOME_TERMINAL_SCREEN"),
                    "GNOME_TERMINAL_SERVICE=" + s.variableDe(0, "GNOME_TERMINAL_SERVICE"), "gnome-terminal",
                    "--tab", "--", "tmux", "-S", enchufe, "attach"});
  }
  [[nodiscard]] bool abrirPestanaDeKonsole() const {
    Palabras const llamada{"dbus-send", "--session", "--type=method_call", "--print-reply=literal",
                           "--dest=" + s.variableDe(0, "KONSOLE_DBUS_SERVICE")};
    auto nueva = llamada;
    nueva.insert(nueva.end(), {s.variableDe(0, "KONSOLE_DBUS_WINDOW"), "org.kde.konsole.Window.newSession"});
    auto const respuesta = s.escritorio.correr(nueva).salida;
    auto orden = llamada;
    orden.insert(orden.end(),
                 {"/Sessions/" + std::to_string(std::stoi(respuesta.substr(respuesta.rfind(' ')))),
                  "org.kde.konsole.Session.runCommand", "string:tmux -S " + enchufe + " attach"});
    return s.hacer(orden);
  }

  void laTeclaLlegaSoloAlPane(std::size_t cual, std::string const& tecla) const {
    auto const corrida = s.escritorio.ayudante({"focus", "tmux", s.sesiones.at(cual).tty, "xterm"});
    ASSERT_EQ(corrida.codigo, 0) << corrida.error;
    ASSERT_TRUE(s.hacer({"xdotool", "key", tecla, "Return"}));
    EXPECT_TRUE(esperarA([&] { return s.teclasDe(cual).ends_with(tecla + "\n"); }, std::chrono::seconds{10}));
    for (std::size_t i = 0; i < s.sesiones.size(); ++i) {
      EXPECT_EQ(s.teclasDe(i).contains(tecla), i == cual) << i;
    }
  }

  Sesiones s{*fichaDeLinux(GetParam()), Escritorio::Pantalla::x11};
  std::string enchufe = s.escritorio.home().dentro("r/tmux");
};

INSTANTIATE_TEST_SUITE_P(Linux, TmuxEnPestana, testing::Values("org.kde.konsole", "org.gnome.Terminal"),
                         [](auto const& caso) {
                           return caso.param == "org.kde.konsole" ? std::string{"Konsole"} : "GnomeTerminal";
                         });

TEST_P(TmuxEnPestana, laTeclaLlegaAlPaneYALaOtraPestana) {
  ASSERT_TRUE(abrirlas());
  s.laTeclaLlegaSoloA(0, "a");
  laTeclaLlegaSoloAlPane(1, "b");
  s.laTeclaLlegaSoloA(0, "c");
  laTeclaLlegaSoloAlPane(2, "d");
}

}  // namespace
}  // namespace zorve::pruebas
