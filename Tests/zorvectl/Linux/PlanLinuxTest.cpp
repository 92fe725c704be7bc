#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "zorvectl/MesaDePlanes.h"

namespace zorve::pruebas {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// Runs plan and open, in a session of its own without a terminal, over a live record of the shell itself.
constexpr char const* preguntarSinTty =
    "mkdir -p \"$1/.claude/sessions\"\n"
    "echo '{\"pid\":'$$',\"sessionId\":\"'\"$3\"'\",\"cwd\":\"/v\"}' >\"$1/.claude/sessions/1.json\"\n"
    "\"$2\" plan 111 --home \"$1\" --terminal com.apple.Terminal --json\n"
    "\"$2\" plan 111 --home \"$1\" --terminal com.apple.Terminal\n"
    "\"$2\" open 111 --home \"$1\" --terminal com.apple.Terminal\n";

TEST_F(ZorvectlPlan, unaVivaSinTtyNoSePuedeEnfocar) {
  conSesion(Home::uno, "/v");
  auto const corrida = dobles::correr({"/usr/bin/setsid", "--wait", "/bin/sh", "-c", preguntarSinTty, "sh",
                                       home.ruta(), ZORVECTL, std::string{Home::uno}},
                                      {{"HOME", home.ruta()}});
  std::string const frase =
      "The session is alive but has no controlling terminal; there is nowhere to focus.\n";
  EXPECT_EQ(corrida.salida, "{\"noSePuedeEnfocar\":null}\n" + frase);
  EXPECT_EQ(corrida.error, "zorvectl: " + frase);
  EXPECT_EQ(corrida.codigo, 1);
}

TEST_F(ZorvectlPlan, unaTerminalDeAquiDaSuAyudanteAlLadoDeZorvectl) {
  auto const corrida = zorvectl({"plan", "--cwd", "/a", "--command", "x", "--terminal", "XTERM", "--json"});
  std::string const propio{ZORVECTL};
  EXPECT_EQ(corrida.salida, "{\"comandos\":[{\"ejecutable\":\"" + propio.substr(0, propio.rfind('/')) +
                                "/zorve-terminal\",\"args\":[\"open\",\"xterm\",\"/a\",\"x\"]}]}\n");
}

TEST_F(ZorvectlPlan, siLaEleccionNoEstaInstaladaElFalloLoDice) {
  ASSERT_EQ(zorvectl({"choose", "com.apple.Terminal"}).codigo, 0);
  auto const corrida = zorvectl({"plan", "--cwd", "/", "--command", "x"});
  EXPECT_EQ(corrida.codigo, 1);
  EXPECT_EQ(corrida.salida, "");
  EXPECT_THAT(corrida.error, StartsWith("zorvectl: "));
}

TEST_F(ZorvectlPlan, unosAjustesDanadosSeDicenYNoCuentan) {
  home.carpeta().escribir(".config/com.sarnol.zorve/preferences.json", "roto");
  auto const corrida = zorvectl({"plan", "--cwd", "/", "--command", "x"});
  EXPECT_THAT(corrida.error, StartsWith("zorvectl: Zorve cannot use its settings in " + home.ruta()));
}

TEST_F(ZorvectlOpen, unProgramaQueNoSePuedeLanzarSeDiceComoEnElPanel) {
  falla({"open", "--cwd", "/", "--command", "x", "--terminal", "com.apple.Terminal"},
        "Could not launch /usr/bin/osascript: No such file or directory");
}

TEST_F(ZorvectlOpen, unAyudanteQueFallaSeDiceConSuCodigoYSuSalida) {
  auto const corrida =
      home.zorvectl({"open", "--cwd", "/no/hay/tal", "--command", "x", "--terminal", "xterm"},
                    {{"DISPLAY", ""}, {"WAYLAND_DISPLAY", ""}});
  EXPECT_EQ(corrida.codigo, 1);
  EXPECT_EQ(corrida.salida, "");
  EXPECT_THAT(corrida.error, HasSubstr("/zorve-terminal exited with code "));
}

TEST_F(ZorvectlOpen, quienNoQuiereSaberDeSusHijosTambienSeEnteraDelFallo) {
  auto const corrida = dobles::correr({"/usr/bin/env", "--ignore-signal=CHLD", ZORVECTL, "open", "--cwd", "/",
                                       "--command", "x", "--terminal", "xterm"},
                                      {{"HOME", home.ruta()}, {"DISPLAY", ""}, {"WAYLAND_DISPLAY", ""}});
  EXPECT_EQ(corrida.codigo, 1);
  EXPECT_THAT(corrida.error, HasSubstr("/zorve-terminal exited with code "));
}

}  // namespace
}  // namespace zorve::pruebas
