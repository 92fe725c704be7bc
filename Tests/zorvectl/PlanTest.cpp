#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "zorvectl/MesaDePlanes.h"

namespace zorve::pruebas {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

TEST_F(ZorvectlPlan, elPlanDeUnaSesionTerminadaEsElDeSuTerminal) {
  conSesion(Home::uno, "/srv/it's");
  auto const corrida =
      zorvectl({"plan", std::string{Home::uno}, "--terminal", "com.apple.Terminal", "--json"});
  EXPECT_EQ(corrida.codigo, 0);
  EXPECT_EQ(corrida.error, "");
  EXPECT_EQ(corrida.salida,
            R"({"comandos":[{"ejecutable":"/usr/bin/osascript","args":["-e","tell application \"Terminal\"\n)"
            R"(  activate\n  do script \"cd '/srv/it'\\\\''s' && claude -r )"
            R"('11111111-aaaa-4bbb-8ccc-000000000001'\"\nend tell"]}]})"
            "\n");
}

TEST_F(ZorvectlPlan, bastaUnPrefijoQueSoloEllaTenga) {
  conSesion(Home::uno, "/srv/uno");
  conSesion(Home::dos, "/srv/dos");
  auto const corrida = zorvectl({"plan", "2", "--terminal", "com.mitchellh.ghostty"});
  EXPECT_EQ(corrida.codigo, 0);
  EXPECT_THAT(corrida.salida, HasSubstr("to \"/srv/dos\""));
}

TEST_F(ZorvectlPlan, unPrefijoAmbiguoNombraLasSesiones) {
  conSesion("abcdef11-aaaa-4bbb-8ccc-000000000001", "/a");
  conSesion("abcdef12-aaaa-4bbb-8ccc-000000000001", "/b");
  auto const corrida = zorvectl({"plan", "abcdef1", "--terminal", "com.apple.Terminal"});
  EXPECT_EQ(corrida.codigo, 1);
  EXPECT_THAT(corrida.error, StartsWith("zorvectl: 2 sessions begin with abcdef1 ("));
  EXPECT_THAT(corrida.error, HasSubstr("abcdef11-aaaa"));
  EXPECT_THAT(corrida.error, HasSubstr("abcdef12-aaaa"));
  EXPECT_THAT(corrida.error, EndsWith("); give more of the identifier\n"));
}

TEST_F(ZorvectlPlan, openNoTecleaCaracteresDeControl) {
  auto const corrida = zorvectl(
      {"open", "--cwd", "/tmp/x\x15touch PWNED\r", "--command", "true", "--terminal", "com.apple.Terminal"});
  EXPECT_EQ(corrida.codigo, 1);
  EXPECT_EQ(corrida.salida, "");
  EXPECT_THAT(corrida.error,
              StartsWith("zorvectl: The session in /tmp/x\u2415touch PWNED\u240d cannot be opened "));
  EXPECT_EQ(corrida.error.find('\n'), corrida.error.size() - 1);
}

TEST_F(ZorvectlPlan, unaSesionDesconocidaEsUnFallo) {
  conSesion(Home::uno, "/a");
  falla({"plan", "zz\x1B[31m", "--terminal", "com.apple.Terminal"},
        "no session has the identifier zz␛[31m or one that begins so");
}

TEST_F(ZorvectlPlan, unDirectorioYUnaLineaDanElPlanDeLaTerminal) {
  auto const corrida =
      zorvectl({"plan", "--cwd", "/a b", "--command", "ls -l", "--terminal", "com.mitchellh.ghostty"});
  EXPECT_EQ(corrida.codigo, 0);
  EXPECT_EQ(corrida.salida,
            "/usr/bin/osascript\n"
            "  1  -e\n"
            "  2  tell application \"Ghostty\"\n"
            "       activate\n"
            "       set configuracion to new surface configuration\n"
            "       set initial working directory of configuracion to \"/a b\"\n"
            "       set initial input of configuracion to \"ls -l\" & return\n"
            "       new window with configuration configuracion\n"
            "     end tell\n");
}

TEST_F(ZorvectlPlan, unTtyDaElPlanDeEnfocar) {
  auto const corrida =
      zorvectl({"plan", "--tty", "/dev/ttys004", "--terminal", "com.apple.Terminal", "--json"});
  EXPECT_EQ(corrida.codigo, 0);
  EXPECT_THAT(corrida.salida, HasSubstr(R"(if elTty is \"/dev/ttys004\" or elTty is \"ttys004\" then)"));
}

TEST_F(ZorvectlPlan, unaTerminalQueNoEnfocaLoDiceEnElPlan) {
  std::vector<std::string> palabras{"plan", "--tty", "/dev/pts/3", "--terminal", "com.mitchellh.ghostty"};
  EXPECT_EQ(zorvectl(palabras).salida,
            "The session is alive on pts/3 and Ghostty cannot bring its window to the front.\n");
  palabras.emplace_back("--json");
  EXPECT_EQ(zorvectl(palabras).salida, "{\"noSePuedeEnfocar\":\"pts/3\"}\n");
}

TEST_F(ZorvectlPlan, enElJsonLosBytesQueNoSonUtf8SeReemplazan) {
  auto const corrida = zorvectl(
      {"plan", "--cwd", "/\xFF", "--command", "\x1B", "--terminal", "com.mitchellh.ghostty", "--json"});
  EXPECT_THAT(corrida.salida, HasSubstr("to \\\"/\xEF\xBF\xBD\\\""));
  EXPECT_THAT(corrida.salida, HasSubstr("\\u001B"));
}

TEST_F(ZorvectlPlan, enTextoLosControlesSeVen) {
  auto const corrida =
      zorvectl({"plan", "--cwd", "/a\nb\x1B[2J\u202Ec", "--command", "x", "--terminal", "xterm"});
  EXPECT_THAT(corrida.salida, HasSubstr("  3  /a\n     b␛[2J<U+202E>c\n  4  x\n"));
}

TEST_F(ZorvectlPlan, hayQueNombrarUnaSolaCosa) {
  errorDeUso({"plan"}, "name one thing");
  errorDeUso({"plan", "abc", "--tty", "x"}, "name one thing");
  errorDeUso({"plan", "abc", "--cwd", "/", "--command", "x"}, "name one thing");
  errorDeUso({"plan", "--cwd", "/"}, "go together");
  errorDeUso({"plan", "--command", "x"}, "go together");
  errorDeUso({"plan", ""}, "must not be empty");
  errorDeUso({"plan", "a", "b"}, "b");
  errorDeUso({"open", "abc", "--json"}, "--json");
}

TEST_F(ZorvectlPlan, unaTerminalDesconocidaEsMalUsoYSeDicenLasConocidas) {
  errorDeUso({"plan", "--tty", "x", "--terminal", "nada"},
             "com.googlecode.iterm2 com.mitchellh.ghostty com.apple.Terminal");
  errorDeUso({"open", "--tty", "x", "--terminal", ""}, "unknown terminal");
}

TEST_F(ZorvectlOpen, noPoderEnfocarEsUnFallo) {
  falla({"open", "--tty", "/dev/ttys004", "--terminal", "com.mitchellh.ghostty"},
        "The session is alive on ttys004 and Ghostty cannot bring its window to the front.");
}

}  // namespace
}  // namespace zorve::pruebas
