#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "Terminales/Sesiones.h"

namespace zorve::pruebas {
namespace {

using namespace std::chrono_literals;
using Palabras = std::vector<std::string>;

/// Starts one more session in a tab or split of the first session's window, as a person would.
using AbrirPestana = bool (*)(Sesiones& sesiones);

bool pestanaDeKonsole(Sesiones& s) {
  auto const servicio = "--dest=" + s.variableDe(0, "KONSOLE_DBUS_SERVICE");
  Palabras const llamada{"dbus-send", "--session", "--type=method_call", "--print-reply=literal", servicio};
  auto const llamar = [&](Palabras const& resto) {
    auto todas = llamada;
    todas.insert(todas.end(), resto.begin(), resto.end());
    return s.escritorio.correr(todas);
  };
  auto const nueva = llamar({s.variableDe(0, "KONSOLE_DBUS_WINDOW"), "org.kde.konsole.Window.newSession"});
  EXPECT_EQ(nueva.codigo, 0) << nueva.error;
  auto const numero = std::to_string(std::stoi(nueva.salida.substr(nueva.salida.find_last_of(' ') + 1)));
  auto const puesta = llamar({"/Sessions/" + numero, "org.kde.konsole.Session.runCommand",
                              "string:" + s.escritorio.home().dentro("propios/claude")});
  return puesta.codigo == 0;
}

/// Inside the first session's window the terminal finds by its variables where a tab belongs.
Palabras desdeLaPrimera(Sesiones const& s, Palabras const& nombres, Palabras const& palabras) {
  Palabras todas{"env"};
  for (auto const& nombre : nombres) todas.push_back(nombre + "=" + s.variableDe(0, nombre));
  todas.insert(todas.end(), palabras.begin(), palabras.end());
  todas.push_back(s.escritorio.home().dentro("propios/claude"));
  return todas;
}

bool pestanaDeGnomeTerminal(Sesiones& s) {
  return s.hacer(desdeLaPrimera(s, {"GNOME_TERMINAL_SCREEN", "GNOME_TERMINAL_SERVICE"},
                                {"gnome-terminal", "--tab", "--"}));
}

bool pestanaDeKgx(Sesiones& s) { return s.hacer(desdeLaPrimera(s, {}, {"kgx", "--tab", "--"})); }

bool pestanaDeTilix(Sesiones& s) {
  return s.hacer(desdeLaPrimera(s, {"TILIX_ID"}, {"tilix", "--action=app-new-session", "-e"}));
}

bool mitadDeTilix(Sesiones& s) {
  return s.hacer(desdeLaPrimera(s, {"TILIX_ID"}, {"tilix", "--action=session-add-right", "-e"}));
}

Palabras conKitty(Sesiones const& s, std::string const& tipo) {
  return desdeLaPrimera(
      s, {}, {"kitty", "@", "--to", s.variableDe(0, "KITTY_LISTEN_ON"), "launch", "--type=" + tipo});
}
bool pestanaDeKitty(Sesiones& s) { return s.hacer(conKitty(s, "tab")); }
bool mitadDeKitty(Sesiones& s) { return s.hacer(conKitty(s, "window")); }

struct Caso {
  std::string nombre;
  std::string identificador;
  AbrirPestana abrirPestana;
};

void PrintTo(Caso const& caso, std::ostream* salida) { *salida << caso.nombre; }

/// A window with two tabs (or splits), and a second window.
class Pestanas : public testing::TestWithParam<Caso> {
 protected:
  explicit Pestanas(Escritorio::Pantalla pantalla = Escritorio::Pantalla::x11)
      : s{*fichaDeLinux(GetParam().identificador), pantalla} {}

  void SetUp() override {
    auto const& ficha = *fichaDeLinux(GetParam().identificador);
    if (!estaAqui(ficha)) GTEST_SKIP() << noEstaAqui(ficha);
  }

  [[nodiscard]] bool abrirlas() {
    s.escritorio.home().escribir(".config/kitty/kitty.conf",
                                 "allow_remote_control yes\nlisten_on unix:@zorve-prueba-{kitty_pid}\n");
    return s.abrirVentana() && GetParam().abrirPestana(s) && s.esperarOtra() && s.abrirVentana();
  }

  [[nodiscard]] std::string titulos() const {
    std::string todos;
    for (auto const& ventana : s.ventanas()) {
      todos += s.escritorio.correr({"xprop", "-id", ventana, "_NET_WM_NAME"}).salida;
    }
    return todos;
  }

  Sesiones s;
};

Caso const konsole{"Konsole", "org.kde.konsole", pestanaDeKonsole};
Caso const gnomeTerminal{"GnomeTerminal", "org.gnome.Terminal", pestanaDeGnomeTerminal};
Caso const kgx{"Kgx", "org.gnome.Console", pestanaDeKgx};
Caso const tilix{"Tilix", "com.gexperts.Tilix", pestanaDeTilix};
Caso const enTilix{"MitadDeTilix", "com.gexperts.Tilix", mitadDeTilix};
Caso const kitty{"Kitty", "kitty", pestanaDeKitty};
Caso const enKitty{"MitadDeKitty", "kitty", mitadDeKitty};

INSTANTIATE_TEST_SUITE_P(Linux, Pestanas,
                         testing::Values(konsole, gnomeTerminal, kgx, tilix, enTilix, kitty, enKitty),
                         [](auto const& caso) { return caso.param.nombre; });

/// The same under sway.
class PestanasDeSwayLargo : public Pestanas {
 protected:
  PestanasDeSwayLargo() : Pestanas{Escritorio::Pantalla::wayland} {}
};

INSTANTIATE_TEST_SUITE_P(Linux, PestanasDeSwayLargo,
                         testing::Values(konsole, gnomeTerminal, kgx, tilix, kitty, enKitty),
                         [](auto const& caso) { return caso.param.nombre; });

/// The same with the terminal's process stopped.
class TerminalDetenida : public Pestanas {};

INSTANTIATE_TEST_SUITE_P(Linux, TerminalDetenida, testing::Values(konsole, gnomeTerminal, kgx, tilix, kitty),
                         [](auto const& caso) { return caso.param.nombre; });

TEST_P(Pestanas, laTeclaLlegaALaPestanaEnfocadaYLosTitulosVuelven) {
  ASSERT_TRUE(abrirlas());
  s.laTeclaLlegaSoloA(0, "a");
  s.laTeclaLlegaSoloA(2, "b");
  s.laTeclaLlegaSoloA(1, "c");
  ASSERT_TRUE(s.hacer({"xdotool", "getactivewindow", "windowminimize", "--sync"}));
  s.laTeclaLlegaSoloA(0, "d");
  ASSERT_TRUE(s.hacer({"xdotool", "set_desktop", "1"}));
  s.laTeclaLlegaSoloA(1, "e");
  s.laTeclaLlegaSoloA(2, "f");
  EXPECT_TRUE(esperarA([&] { return !titulos().contains("zorve-"); }, 5s)) << titulos();
}

TEST_P(PestanasDeSwayLargo, laTeclaLlegaALaPestanaEnfocadaTambienDesdeOtroEspacio) {
  ASSERT_TRUE(abrirlas());
  s.laTeclaLlegaSoloA(0, "a");
  s.laTeclaLlegaSoloA(2, "b");
  s.laTeclaLlegaSoloA(1, "c");
  ASSERT_TRUE(s.hacer({"swaymsg", "workspace", "9"}));
  s.laTeclaLlegaSoloA(0, "d");
}

TEST_P(TerminalDetenida, seDiceEnUnaFraseYDespuesSeEnfocaComoAntes) {
  ASSERT_TRUE(abrirlas());
  auto const anfitrion = s.anfitrionDe(0);
  ASSERT_GT(anfitrion, 1);
  ASSERT_EQ(::kill(anfitrion, SIGSTOP), 0);
  auto const empieza = std::chrono::steady_clock::now();
  auto const corrida = s.enfocar(0);
  auto const tardo = std::chrono::steady_clock::now() - empieza;
  EXPECT_EQ(::kill(anfitrion, SIGCONT), 0);
  EXPECT_LT(tardo, 10s);
  EXPECT_EQ(corrida.codigo, 1);
  EXPECT_EQ(corrida.error, "zorve-terminal: " + fichaDeLinux(GetParam().identificador)->nombre +
                               " does not answer, so its session on " + s.sesiones[0].tty.substr(5) +
                               " could not be shown. Try again when it responds.\n");
  s.laTeclaLlegaSoloA(1, "a");
  s.laTeclaLlegaSoloA(0, "b");
}

/// Konsole with two windows of one process: the first session's own, and one that its second tab was moved
/// to.
TEST(KonsoleDeVariasVentanas, unaPestanaQueCambioDeVentanaSeEncuentraEnLaNueva) {
  auto const& ficha = *fichaDeLinux(konsole.identificador);
  if (!estaAqui(ficha)) GTEST_SKIP() << noEstaAqui(ficha);
  Sesiones s{ficha, Escritorio::Pantalla::x11};
  ASSERT_TRUE(s.abrirVentana() && pestanaDeKonsole(s) && s.esperarOtra());
  ASSERT_TRUE(
      s.hacer({"dbus-send", "--session", "--print-reply", "--dest=" + s.variableDe(0, "KONSOLE_DBUS_SERVICE"),
               "/konsole/MainWindow_1", "org.kde.KMainWindow.activateAction", "string:detach-tab"}));
  ASSERT_TRUE(esperarA([&] { return s.ventanas().size() == 2; }));
  ASSERT_EQ(s.anfitrionDe(0), s.anfitrionDe(1));
  ASSERT_EQ(s.variableDe(0, "WINDOWID"), s.variableDe(1, "WINDOWID"));
  s.laTeclaLlegaSoloA(0, "a");
  s.laTeclaLlegaSoloA(1, "b");
  s.laTeclaLlegaSoloA(0, "c");
}

/// GNOME Terminal with its search provider switched on, which names sessions.
TEST(GnomeTerminalConBuscador, muestraLaPestanaQueSeLePide) {
  auto const& ficha = *fichaDeLinux(gnomeTerminal.identificador);
  if (!estaAqui(ficha)) GTEST_SKIP() << noEstaAqui(ficha);
  Sesiones s{ficha, Escritorio::Pantalla::x11};
  s.escritorio.home().escribir(".config/glib-2.0/settings/keyfile",
                               "[org/gnome/terminal/legacy]\nshell-integration-enabled=true\n");
  ASSERT_TRUE(s.hacer({"dbus-update-activation-environment", "GSETTINGS_BACKEND=keyfile"}));
  ASSERT_TRUE(s.abrirVentana() && pestanaDeGnomeTerminal(s) && s.esperarOtra() && s.abrirVentana());
  auto const ofrece =
      s.escritorio.correr({"dbus-send", "--session", "--print-reply", "--dest=org.gnome.Terminal",
                           "/org/gnome/Terminal/SearchProvider", "org.freedesktop.DBus.Properties.GetAll",
                           "string:org.gnome.Shell.SearchProvider2"});
  ASSERT_EQ(ofrece.codigo, 0) << ofrece.error;
  s.laTeclaLlegaSoloA(0, "a");
  s.laTeclaLlegaSoloA(2, "b");
  s.laTeclaLlegaSoloA(1, "c");
  ASSERT_TRUE(s.hacer({"xdotool", "getactivewindow", "windowminimize", "--sync"}));
  s.laTeclaLlegaSoloA(0, "d");
}

/// An agent at work writes titles of its own all the time.
TEST(TituloQueCambia, laMarcaSeVeAunqueLaSesionEscribaTitulosSinCesar) {
  auto const& ficha = *fichaDeLinux(gnomeTerminal.identificador);
  if (!estaAqui(ficha)) GTEST_SKIP() << noEstaAqui(ficha);
  Sesiones s{ficha, Escritorio::Pantalla::x11};
  s.escritorio.programa("titulos",
                        "while sleep 0.1; do printf '\\033]0;trabajando\\007'; done &\nexec claude\n");
  ASSERT_TRUE(s.abrirVentana("titulos") && s.abrirVentana("titulos"));
  s.laTeclaLlegaSoloA(0, "a");
  s.laTeclaLlegaSoloA(1, "b");
  ASSERT_TRUE(s.hacer({"xdotool", "getactivewindow", "windowminimize", "--sync"}));
  s.laTeclaLlegaSoloA(1, "c");
}

}  // namespace
}  // namespace zorve::pruebas
