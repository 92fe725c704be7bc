#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "Dobles/SinPrivilegios.h"
#include "zorvectl/Home.h"

namespace zorve::pruebas {
namespace {

using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// A home whose PATH and desktop entries hold what each test puts there, and nothing of this machine's.
class ZorvectlTerminales : public testing::Test {
 protected:
  [[nodiscard]] dobles::Corrida zorvectl(std::vector<std::string> const& palabras,
                                         std::map<std::string, std::string> entorno = {}) const {
    entorno.insert({{"XDG_CONFIG_HOME", home.ruta() + "/config"},
                    {"XDG_DATA_HOME", home.ruta() + "/datos"},
                    {"XDG_DATA_DIRS", home.ruta() + "/comunes"},
                    {"PATH", home.ruta() + "/bin"}});
    return home.zorvectl(palabras, entorno);
  }
  void instalar(std::string const& programa) const {
    std::filesystem::permissions(home.carpeta().escribir("bin/" + programa, "#!/bin/sh\n"),
                                 std::filesystem::perms{0755});
  }
  [[nodiscard]] std::string ajustes() const {
    std::ifstream entrada{archivo, std::ios::binary};
    return {std::istreambuf_iterator<char>{entrada}, {}};
  }

  Home home;
  std::string archivo = home.ruta() + "/config/com.sarnol.zorve/preferences.json";
};

TEST_F(ZorvectlTerminales, chooseGuardaElIdentificadorDeLaConocida) {
  instalar("xterm");
  auto const corrida = zorvectl({"choose", "XTerm"});
  EXPECT_EQ(corrida.codigo, 0);
  EXPECT_EQ(corrida.salida, "Sessions open in xterm from now on.\n");
  EXPECT_EQ(corrida.error, "");
  EXPECT_EQ(ajustes(), "{\n  \"zorve.terminalElegida\": \"xterm\"\n}\n");
}

TEST_F(ZorvectlTerminales, chooseAutoOlvidaLaEleccionYNadaMas) {
  home.carpeta().escribir("config/com.sarnol.zorve/preferences.json",
                          R"({"zorve.terminalElegida":"xterm","otra":1})");
  auto const corrida = zorvectl({"choose", "--auto"});
  EXPECT_EQ(corrida.codigo, 0);
  EXPECT_EQ(corrida.salida, "Zorve picks the terminal from now on.\n");
  EXPECT_EQ(ajustes(), "{\n  \"otra\": 1\n}\n");
}

TEST_F(ZorvectlTerminales, chooseAvisaDeUnaConocidaQueNoEstaInstalada) {
  auto const corrida = zorvectl({"choose", "kitty"});
  EXPECT_EQ(corrida.codigo, 0);
  EXPECT_THAT(corrida.error, StartsWith("zorvectl: warning: kitty is not installed"));
  EXPECT_THAT(ajustes(), HasSubstr("\"kitty\""));
}

TEST_F(ZorvectlTerminales, chooseRechazaUnaDesconocidaYNoTocaNada) {
  auto const corrida = zorvectl({"choose", "nada"});
  EXPECT_EQ(corrida.codigo, 2);
  EXPECT_EQ(corrida.salida, "");
  EXPECT_THAT(corrida.error, StartsWith("zorvectl: unknown terminal nada; known: "));
  EXPECT_FALSE(std::filesystem::exists(archivo));
}

TEST_F(ZorvectlTerminales, chooseNecesitaUnaSolaCosa) {
  EXPECT_EQ(zorvectl({"choose"}).codigo, 2);
  EXPECT_EQ(zorvectl({"choose", "xterm", "--auto"}).codigo, 2);
  EXPECT_EQ(zorvectl({"choose", ""}).codigo, 2);
}

TEST_F(ZorvectlTerminales, chooseDiceQuePasaSiNoPuedeGuardar) {
  auto const carpeta = home.carpeta().carpeta("config");
  ASSERT_EQ(::chmod(carpeta.c_str(), 0555), 0);
  dobles::SinPrivilegios const comoCualquiera;
  auto const corrida = zorvectl({"choose", "xterm"});
  EXPECT_EQ(corrida.codigo, 1);
  EXPECT_EQ(corrida.salida, "");
  EXPECT_EQ(corrida.error, "zorvectl: Zorve could not save its settings in " + archivo +
                               ": Permission denied. Make sure that you may write to that folder and that "
                               "the disk has room, then try again.\n");
}

TEST_F(ZorvectlTerminales, chooseNoTocaUnosAjustesDanados) {
  home.carpeta().escribir("config/com.sarnol.zorve/preferences.json", "roto");
  EXPECT_EQ(zorvectl({"choose", "xterm"}).codigo, 1);
  EXPECT_EQ(ajustes(), "roto");
}

TEST_F(ZorvectlTerminales, elJsonDiceLaElegidaYPorQue) {
  instalar("xterm");
  instalar("kitty");
  ASSERT_EQ(zorvectl({"choose", "kitty"}).codigo, 0);
  auto const corrida = zorvectl({"terminals", "--json"});
  EXPECT_EQ(corrida.codigo, 0);
  EXPECT_EQ(corrida.error, "");
  EXPECT_THAT(corrida.salida,
              HasSubstr(R"({"identificador":"kitty","nombre":"kitty","instalada":true,"puedeEnfocar":)"));
  EXPECT_THAT(corrida.salida,
              HasSubstr(R"({"identificador":"foot","nombre":"foot","instalada":false,"puedeEnfocar":)"));
  EXPECT_THAT(corrida.salida, HasSubstr(R"("eleccion":"kitty","manejador":)"));
  EXPECT_THAT(
      corrida.salida,
      HasSubstr(R"("resuelta":{"identificador":"kitty","origen":"eleccionDeLaPersona"},"errores":[]})"));
}

TEST_F(ZorvectlTerminales, laTerminalDelSistemaSeMuestraConQuienLoDice) {
  instalar("foot");
  instalar("kitty");
  home.carpeta().escribir("config/kdeglobals", "[General]\nTerminalApplication=foot\n");
  auto const corrida = zorvectl({"terminals"});
  EXPECT_THAT(corrida.salida, HasSubstr("sessions open here: the system's terminal (kdeglobals)\n"));
  EXPECT_THAT(zorvectl({"terminals", "--json"}).salida,
              HasSubstr(R"("manejador":"foot","manejadorDichoPor":"kdeglobals")"));
}

TEST_F(ZorvectlTerminales, laTablaSenalaLaElegida) {
  instalar("kitty");
  ASSERT_EQ(zorvectl({"choose", "kitty"}).codigo, 0);
  auto const corrida = zorvectl({"terminals"});
  EXPECT_EQ(corrida.codigo, 0);
  EXPECT_THAT(corrida.salida, ContainsRegex("\nkitty +kitty +installed +sessions open here: your choice\n"));
  EXPECT_THAT(corrida.salida, ContainsRegex("\nfoot +foot +not installed\n"));
}

TEST_F(ZorvectlTerminales, laTablaCabeEnElAnchoPedidoYNoLlevaColoresFueraDeUnaTerminal) {
  instalar("kitty");
  ASSERT_EQ(zorvectl({"choose", "kitty"}).codigo, 0);
  auto const corrida = zorvectl({"terminals"}, {{"COLUMNS", "40"}});
  EXPECT_THAT(corrida.salida, Not(HasSubstr("\x1B")));
  std::size_t desde = 0;
  for (auto fin = corrida.salida.find('\n'); fin != std::string::npos;
       fin = corrida.salida.find('\n', desde)) {
    EXPECT_LE(fin - desde, 42U) << corrida.salida.substr(desde, fin - desde);
    desde = fin + 1;
  }
}

TEST_F(ZorvectlTerminales, sinNingunaLaTablaSaleYElErrorDiceQueFalta) {
  auto const corrida = zorvectl({"terminals"});
  EXPECT_EQ(corrida.codigo, 0);
  EXPECT_THAT(corrida.salida, Not(ContainsRegex("  installed")));
  EXPECT_THAT(corrida.error, StartsWith("launcher: Zorve found no known terminal installed (it looks for "));
}

TEST_F(ZorvectlTerminales, unaEleccionDesinstaladaSeMuestraConSuMensaje) {
  instalar("xterm");
  ASSERT_EQ(zorvectl({"choose", "kitty"}).codigo, 0);
  auto const corrida = zorvectl({"terminals"});
  EXPECT_THAT(corrida.salida, ContainsRegex("\nkitty +kitty +not installed +your choice\n"));
  EXPECT_EQ(corrida.error,
            "launcher: The chosen terminal (kitty) is no longer installed. Installed now: xterm.\n");
  EXPECT_THAT(
      zorvectl({"terminals", "--json"}).salida,
      HasSubstr(R"("resuelta":null,"errores":[{"fuente":"launcher","mensaje":"The chosen terminal )"));
}

TEST_F(ZorvectlTerminales, unosAjustesDanadosSeDicenEnLosDosFormatos) {
  instalar("xterm");
  home.carpeta().escribir("config/com.sarnol.zorve/preferences.json", "[]");
  EXPECT_THAT(zorvectl({"terminals"}).error,
              StartsWith("launcher: Zorve cannot use its settings in " + archivo));
  EXPECT_THAT(zorvectl({"terminals", "--json"}).salida,
              HasSubstr(R"("errores":[{"fuente":"launcher","mensaje":"Zorve cannot use its settings in )"));
}

}  // namespace
}  // namespace zorve::pruebas
