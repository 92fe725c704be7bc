#include "ZorveCore/Terminales/CatalogoDeTerminales.h"
#include "ZorveCore/Terminales/TerminalesDeMac.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Dobles/AplicacionesFijas.h"
#include "Dobles/ManejadorFijo.h"
#include "Dobles/PreferenciasEnMemoria.h"

namespace zorve {
namespace {

using testing::ElementsAre;

constexpr char const* apple = "com.apple.Terminal";
constexpr char const* iterm = "com.googlecode.iterm2";
constexpr char const* ghostty = "com.mitchellh.ghostty";

class CatalogoDeTerminalesTest : public testing::Test {
 protected:
  CatalogoDeTerminales catalogo() {
    return {.conocidas = todas(aplicaciones),
            .manejadorDelSistema = [this] { return manejadorRegistrado(manejador); },
            .leerEleccion = [this] { return eleccionGuardada(preferencias); },
            .voces = voces};
  }
  std::expected<std::pair<std::string, OrigenDeLaTerminal>, std::string> resuelta() {
    auto const resultado = catalogo().resolver();
    if (!resultado) {
      EXPECT_EQ(resultado.error().fuente, IndexSource::launcher);
      return std::unexpected{resultado.error().mensaje};
    }
    return std::pair{resultado->terminal->identificador(), resultado->origen};
  }
  void elegida(std::string const& identificador) {
    ASSERT_TRUE(elegir(preferencias, identificador).has_value());
  }

  dobles::AplicacionesFijas aplicaciones;
  dobles::ManejadorFijo manejador{"com.apple.terminal.shell-script", std::nullopt};
  dobles::PreferenciasEnMemoria preferencias;
  VocesDelSistema voces;
};

std::vector<std::string> nombres(std::vector<TerminalRef> const& terminales) {
  std::vector<std::string> resultado;
  resultado.reserve(terminales.size());
  for (auto const& terminal : terminales) resultado.push_back(terminal->nombre());
  return resultado;
}

std::pair<std::string, OrigenDeLaTerminal> con(std::string identificador, OrigenDeLaTerminal origen) {
  return {std::move(identificador), origen};
}

TEST_F(CatalogoDeTerminalesTest, lasTresConocidasEstanEnSuOrden) {
  EXPECT_THAT(nombres(todas(aplicaciones)), ElementsAre("iTerm2", "Ghostty", "Terminal"));
}

TEST_F(CatalogoDeTerminalesTest, lasInstaladasSiguenElOrdenDeLasConocidas) {
  aplicaciones.instaladas = {apple, iterm};
  EXPECT_THAT(nombres(catalogo().instaladas()), ElementsAre("iTerm2", "Terminal"));
}

TEST_F(CatalogoDeTerminalesTest, laEleccionDeLaPersonaVaPorDelante) {
  aplicaciones.instaladas = {apple, iterm, ghostty};
  manejador.identificador = iterm;
  elegida(ghostty);
  EXPECT_EQ(resuelta(), con(ghostty, OrigenDeLaTerminal::eleccionDeLaPersona));
}

TEST_F(CatalogoDeTerminalesTest, unaEleccionEnMayusculasEncuentraSuTerminal) {
  aplicaciones.instaladas = {apple, iterm};
  elegida("COM.APPLE.TERMINAL");
  EXPECT_EQ(resuelta(), con(apple, OrigenDeLaTerminal::eleccionDeLaPersona));
}

TEST_F(CatalogoDeTerminalesTest, losAcentosSiDistinguen) {
  aplicaciones.instaladas = {apple};
  elegida("com.apple.Términal");
  EXPECT_FALSE(resuelta().has_value());
}

TEST_F(CatalogoDeTerminalesTest, unaEleccionVaciaNoEsEleccion) {
  aplicaciones.instaladas = {apple, iterm};
  manejador.identificador = apple;
  elegida("");
  EXPECT_EQ(resuelta(), con(apple, OrigenDeLaTerminal::manejadorDelSistema));
}

TEST_F(CatalogoDeTerminalesTest, unaEleccionQueNoEsTextoNoEsEleccion) {
  aplicaciones.instaladas = {apple};
  ASSERT_TRUE(preferencias.escribir("zorve.terminalElegida", true).has_value());
  EXPECT_EQ(resuelta(), con(apple, OrigenDeLaTerminal::unicaInstalada));
}

TEST_F(CatalogoDeTerminalesTest, unaEleccionConocidaPeroDesinstaladaFallaAunqueHayaManejador) {
  aplicaciones.instaladas = {apple, iterm};
  manejador.identificador = apple;
  elegida(ghostty);
  EXPECT_EQ(resuelta(), std::unexpected<std::string>{
                            "The chosen terminal (com.mitchellh.ghostty) is no longer installed. Installed "
                            "now: iTerm2, Terminal."});
}

TEST_F(CatalogoDeTerminalesTest, unaEleccionDesconocidaFallaConElTextoGuardadoAunqueHayaUnaSola) {
  aplicaciones.instaladas = {apple};
  manejador.identificador = apple;
  elegida("Com.Acme.Otra");
  EXPECT_EQ(resuelta(),
            std::unexpected<std::string>{
                "The chosen terminal (Com.Acme.Otra) is no longer installed. Installed now: Terminal."});
}

TEST_F(CatalogoDeTerminalesTest, unManejadorQueNoEsTerminalConocidaNoCuenta) {
  aplicaciones.instaladas = {iterm};
  manejador.identificador = "com.apple.dt.Xcode";
  EXPECT_EQ(resuelta(), con(iterm, OrigenDeLaTerminal::unicaInstalada));
}

TEST_F(CatalogoDeTerminalesTest, unManejadorConocidoPeroDesinstaladoNoCuenta) {
  aplicaciones.instaladas = {iterm};
  manejador.identificador = apple;
  EXPECT_EQ(resuelta(), con(iterm, OrigenDeLaTerminal::unicaInstalada));
}

TEST_F(CatalogoDeTerminalesTest, elManejadorTambienSeBuscaSinMirarMayusculas) {
  aplicaciones.instaladas = {apple, iterm};
  manejador.identificador = "com.apple.terminal";
  EXPECT_EQ(resuelta(), con(apple, OrigenDeLaTerminal::manejadorDelSistema));
}

TEST_F(CatalogoDeTerminalesTest, laUnicaInstaladaQueEsManejadorSeDebeAlManejador) {
  aplicaciones.instaladas = {apple};
  manejador.identificador = apple;
  EXPECT_EQ(resuelta(), con(apple, OrigenDeLaTerminal::manejadorDelSistema));
}

TEST_F(CatalogoDeTerminalesTest, laUnicaInstaladaQueNoEsManejadorSeDebeASerUnica) {
  aplicaciones.instaladas = {ghostty};
  EXPECT_EQ(resuelta(), con(ghostty, OrigenDeLaTerminal::unicaInstalada));
}

TEST_F(CatalogoDeTerminalesTest, conVariasYSinManejadorElMensajeDiceQueMandarEscribir) {
  aplicaciones.instaladas = {apple, iterm};
  EXPECT_EQ(resuelta(),
            std::unexpected<std::string>{
                "Several terminals are installed (iTerm2, Terminal) and the system has none registered as "
                "the handler for shell scripts. Pick one: defaults write com.sarnol.zorve "
                "zorve.terminalElegida -string com.googlecode.iterm2"});
}

TEST_F(CatalogoDeTerminalesTest, enLinuxElMensajeDiceQueSeEligeConZorvectl) {
  aplicaciones.instaladas = {apple, iterm};
  voces = vocesDeLinux;
  EXPECT_EQ(resuelta(),
            std::unexpected<std::string>{
                "Several terminals are installed (iTerm2, Terminal) and the system has none registered as "
                "the handler for shell scripts. Pick one: zorvectl choose com.googlecode.iterm2"});
}

TEST_F(CatalogoDeTerminalesTest, sinNingunaElMensajeNombraLasTres) {
  elegida(apple);
  EXPECT_EQ(resuelta(), std::unexpected<std::string>{
                            "Zorve found no known terminal installed (it looks for iTerm2, Ghostty, "
                            "Terminal). Without a terminal there is nowhere to open the session."});
}

TEST_F(CatalogoDeTerminalesTest, nadaSeRecuerdaEntreDosResoluciones) {
  aplicaciones.instaladas = {apple};
  auto const uno = catalogo();
  EXPECT_EQ(uno.resolver()->terminal->identificador(), apple);
  aplicaciones.instaladas = {iterm};
  EXPECT_EQ(uno.resolver()->terminal->identificador(), iterm);
  manejador.identificador = iterm;
  EXPECT_EQ(uno.resolver()->origen, OrigenDeLaTerminal::manejadorDelSistema);
}

TEST_F(CatalogoDeTerminalesTest, elegirGuardaLaEleccionTalComoEsta) {
  elegida("com.Apple.terminal");
  EXPECT_EQ(eleccionGuardada(preferencias), "com.Apple.terminal");
}

TEST_F(CatalogoDeTerminalesTest, elegirNadaQuitaLaClave) {
  elegida(apple);
  ASSERT_TRUE(elegir(preferencias, std::nullopt).has_value());
  EXPECT_EQ(eleccionGuardada(preferencias), std::nullopt);
  EXPECT_EQ(preferencias.leer("zorve.terminalElegida").value(), std::nullopt);
}

TEST_F(CatalogoDeTerminalesTest, elegirDevuelveElFalloDeLasPreferencias) {
  IndexError const fallo{IndexSource::launcher, "no room"};
  preferencias.fallarCon(fallo);
  EXPECT_EQ(elegir(preferencias, apple).error(), fallo);
  EXPECT_EQ(elegir(preferencias, std::nullopt).error(), fallo);
}

TEST_F(CatalogoDeTerminalesTest, conPreferenciasIlegiblesNoHayEleccion) {
  aplicaciones.instaladas = {apple};
  preferencias.fallarCon(IndexError{IndexSource::launcher, "damaged"});
  EXPECT_EQ(resuelta(), con(apple, OrigenDeLaTerminal::unicaInstalada));
}

TEST_F(CatalogoDeTerminalesTest, sePreguntaPorElManejadorDeGuionesDeShell) {
  dobles::ManejadorFijo const deOtroTipo{"public.plain-text", apple};
  EXPECT_EQ(manejadorRegistrado(deOtroTipo), std::nullopt);
  manejador.identificador = iterm;
  EXPECT_EQ(manejadorRegistrado(manejador), iterm);
}

TEST(OrigenDeLaTerminal, suTextoCrudoVaYVuelve) {
  for (auto const origen : todosLosCasos<OrigenDeLaTerminal>()) {
    EXPECT_EQ(desdeTextoCrudo<OrigenDeLaTerminal>(textoCrudo(origen)), origen);
  }
  EXPECT_EQ(textoCrudo(OrigenDeLaTerminal::eleccionDeLaPersona), "eleccionDeLaPersona");
  EXPECT_EQ(textoCrudo(OrigenDeLaTerminal::manejadorDelSistema), "manejadorDelSistema");
  EXPECT_EQ(textoCrudo(OrigenDeLaTerminal::unicaInstalada), "unicaInstalada");
  EXPECT_EQ(desdeTextoCrudo<OrigenDeLaTerminal>("UnicaInstalada"), std::nullopt);
}

TEST(TerminalResuelta, dosConElMismoOrigenYTerminalSonIguales) {
  dobles::AplicacionesFijas const aplicaciones;
  auto const unas = todas(aplicaciones);
  auto const otras = todas(aplicaciones);
  TerminalResuelta const una{unas[0], OrigenDeLaTerminal::unicaInstalada};
  EXPECT_EQ(una, (TerminalResuelta{otras[0], OrigenDeLaTerminal::unicaInstalada}));
  EXPECT_FALSE(una == (TerminalResuelta{otras[1], OrigenDeLaTerminal::unicaInstalada}));
  EXPECT_FALSE(una == (TerminalResuelta{otras[0], OrigenDeLaTerminal::manejadorDelSistema}));
}

TEST(PlanDeApertura, dosPlanesSinTtySonIguales) {
  EXPECT_EQ(PlanDeApertura{NoSePuedeEnfocar{}}, PlanDeApertura{NoSePuedeEnfocar{}});
  EXPECT_NE(PlanDeApertura{NoSePuedeEnfocar{}}, PlanDeApertura{NoSePuedeEnfocar{"ttys004"}});
  EXPECT_NE(PlanDeApertura{NoSePuedeEnfocar{}}, PlanDeApertura{std::vector<ComandoDeApertura>{}});
}

TEST(PlanDeApertura, losComandosSeComparanElementoAElemento) {
  ComandoDeApertura const comando{"/bin/x", {"-e", "a"}};
  EXPECT_EQ(comando, (ComandoDeApertura{"/bin/x", {"-e", "a"}}));
  EXPECT_NE(comando, (ComandoDeApertura{"/bin/y", {"-e", "a"}}));
  EXPECT_NE(comando, (ComandoDeApertura{"/bin/x", {"a", "-e"}}));
}

}  // namespace
}  // namespace zorve
