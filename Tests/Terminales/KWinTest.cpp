#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <string>

#include "Terminales/Sesiones.h"

namespace zorve::pruebas {
namespace {

constexpr char const* llega = "\033[I";
constexpr char const* seVa = "\033[O";
/// What an answer to the question for its attributes (DA1) begins with.
constexpr char const* contesta = "\033[?";

constexpr char const* sinKWin = "KWin is not installed here";

bool hayKWin() { return programaInstalado("kwin_wayland").has_value(); }

/// Two windows under KWin, where nobody else can press keys: their terminals tell each session when it gets
/// the keyboard and when it loses it (xterm's focus reports).
class DosVentanasDeKWinLargo : public DeUnTerminal {
 protected:
  void SetUp() override {
    if (!hayKWin()) GTEST_SKIP() << sinKWin;
    DeUnTerminal::SetUp();
  }

  DosVentanasDeKWinLargo()
      : dos{GetParam(), hayKWin() ? Escritorio::Pantalla::kwin : Escritorio::Pantalla::ninguna} {
    auto const home = dos.escritorio.home().ruta();
    dos.escritorio.programa("claude", "n=$(mktemp '" + home + "/anotados/t.XXXXXX') || exit 1\n" +
                                          "printf '%s\\0' \"$(pwd -P; echo .)\" \"$(tty)\" \"$$\" >\"$n\"\n" +
                                          "mv \"$n\" '" + home + "/anotados/'$$\nstty -icanon -echo\n" +
                                          "printf '\\033[?1004h\\033[c'\nexec cat >>'" + home +
                                          "/teclas/'$$\n");
  }

  /// Waits until its terminal has answered, and so was asked for reports.
  [[nodiscard]] bool abrir(std::size_t cual) {
    return dos.abrirVentana() && esperarA([&] { return dos.teclasDe(cual).contains(contesta); });
  }

  void elTecladoEstaEn(std::size_t cual) const {
    auto const acabaEn = [this](std::size_t sesion, char const* informe) {
      return esperarA([&] { return dos.teclasDe(sesion).ends_with(informe); }, std::chrono::seconds{10});
    };
    EXPECT_TRUE(acabaEn(cual, llega)) << "session " << cual;
    EXPECT_TRUE(acabaEn(1 - cual, seVa)) << "session " << 1 - cual;
  }

  void elTecladoVaA(std::size_t cual) const {
    auto const corrida = dos.enfocar(cual);
    ASSERT_EQ(corrida.codigo, 0) << corrida.error;
    elTecladoEstaEn(cual);
  }

  Sesiones dos;
};

INSTANTIATE_TEST_SUITE_P(Linux, DosVentanasDeKWinLargo, testing::ValuesIn(enfocables(SesionGrafica::kwin)),
                         nombreDelTerminal);

TEST_P(DosVentanasDeKWinLargo, elTecladoPasaALaSesionEnfocadaTambienEnOtroEscritorio) {
  ASSERT_TRUE(abrir(0) && abrir(1));
  ASSERT_TRUE(esperarA([&] { return dos.teclasDe(0).ends_with(seVa); }))
      << "the second window takes the keyboard";
  elTecladoVaA(0);
  elTecladoVaA(1);
  ASSERT_TRUE(dos.hacer({"dbus-send", "--session", "--print-reply", "--dest=org.kde.KWin", "/KWin",
                         "org.kde.KWin.setCurrentDesktop", "int32:2"}));
  ASSERT_TRUE(esperarA([&] { return dos.teclasDe(1).ends_with(seVa); }));
  elTecladoVaA(0);
}

TEST(KWinLargo, unCompositorDetenidoSeDiceEnUnaFraseEnDiezSegundos) {
  auto const& konsole = *fichaDeLinux("org.kde.konsole");
  if (!hayKWin()) GTEST_SKIP() << sinKWin;
  if (!estaAqui(konsole)) GTEST_SKIP() << noEstaAqui(konsole);
  Sesiones una{konsole, Escritorio::Pantalla::kwin};
  ASSERT_TRUE(una.abrirVentana());
  auto const pid = una.escritorio.correr(
      {"dbus-send", "--session", "--print-reply=literal", "--dest=org.freedesktop.DBus",
       "/org/freedesktop/DBus", "org.freedesktop.DBus.GetConnectionUnixProcessID", "string:org.kde.KWin"});
  auto const kwin = std::stoi(pid.salida.substr(pid.salida.find("uint32 ") + 7));
  ASSERT_EQ(::kill(kwin, SIGSTOP), 0);
  auto const empieza = std::chrono::steady_clock::now();
  auto const corrida = una.enfocar(0);
  EXPECT_LT(std::chrono::steady_clock::now() - empieza, std::chrono::seconds{10});
  EXPECT_EQ(::kill(kwin, SIGCONT), 0);
  EXPECT_EQ(corrida.codigo, 1);
  EXPECT_EQ(corrida.error, "zorve-terminal: the desktop did not answer in time\n");
}

}  // namespace
}  // namespace zorve::pruebas
