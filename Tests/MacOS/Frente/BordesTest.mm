#import "MacOS/Frente/Frente.h"

namespace zorve {
namespace {

namespace golpe = tramoya::golpe;
using tramoya::Boton;

constexpr double unRato = 1;

class EnLosBordes : public Frente {
 protected:
  EnLosBordes() { enDisco(sesiones(3)); }
  NSTextView* editor() const { return static_cast<NSTextView*>(campo().currentEditor); }
  /// What a voice or a device asks of the field, with no key behind it.
  void ordenar(char const* orden) {
    [NSApplication.sharedApplication ponerEvento:nil];
    [editor() doCommandBySelector:NSSelectorFromString(tramoya::texto(orden))];
    correr();
  }
};

TEST_F(EnLosBordes, dondeElSistemaNoDaElClicDerechoAlItemElMenuSaleIgual) {
  tramoya::sistema().barraAjena = true;
  arrancar();
  tramoya::pulsarItem(Boton::derecho);
  EXPECT_EQ(tramoya::menusAbiertos().size(), 1U);
}

TEST_F(EnLosBordes, unClicDerechoFueraDelItemNoEsSuyo) {
  arrancar();
  tramoya::pulsarFuera(Boton::derecho);
  EXPECT_EQ(tramoya::menusAbiertos().size(), 0U);
}

TEST_F(EnLosBordes, elMismoClicDerechoPorDosCaminosAbreUnMenu) {
  tramoya::sistema().porDosCaminos = true;
  arrancar();
  tramoya::pulsarItem(Boton::derecho);
  EXPECT_EQ(tramoya::menusAbiertos().size(), 1U);
  EXPECT_EQ(tramoya::popover(), nil);
  tramoya::pulsarItem(Boton::derecho);
  EXPECT_EQ(tramoya::menusAbiertos().size(), 2U);
}

TEST_F(EnLosBordes, sinBotonEnLaBarraUnClicDerechoNoEsDeNadie) {
  tramoya::sistema().itemSinBoton = true;
  arrancar();
  tramoya::pulsarFuera(Boton::derecho, {0, 0});
  EXPECT_EQ(tramoya::menusAbiertos().size(), 0U);
}

TEST_F(EnLosBordes, unaPulsacionEnOtroProgramaCierraElPanel) {
  abrirElPanel();
  tramoya::pulsarFuera();
  EXPECT_EQ(tramoya::popover(), nil);
}

TEST_F(EnLosBordes, cerradoElPanelNadieEscuchaLasPulsacionesDeOtros) {
  arrancar();
  auto const antes = tramoya::veces("global monitor added");
  for (int i = 0; i < 3; ++i) {
    tramoya::avanzar(unRato);
    abrirElPanel();
    [tramoya::popover() performClose:nil];
  }
  EXPECT_EQ(tramoya::veces("global monitor added"), antes + 3);
  EXPECT_EQ(tramoya::veces("global monitor removed"), 3U);
}

TEST_F(EnLosBordes, sueltoElDelegadoNadieEscucha) {
  abrirElPanel();
  soltar();
  EXPECT_EQ(tramoya::veces("global monitor added"), tramoya::veces("global monitor removed"));
}

TEST_F(EnLosBordes, elClicQueCerroElPanelNoLoAbreDeNuevo) {
  abrirElPanel();
  [tramoya::popover() performClose:nil];
  tramoya::avanzar(0.1);
  tramoya::pulsarItem(Boton::izquierdo);
  EXPECT_EQ(tramoya::popover(), nil);
  tramoya::avanzar(0.2);
  tramoya::pulsarItem(Boton::izquierdo);
  EXPECT_NE(tramoya::popover(), nil);
}

TEST_F(EnLosBordes, escapeCierraElPanelAntesDeEsconderElPrograma) {
  abrirElPanel();
  teclear(golpe::escape());
  EXPECT_EQ(tramoya::popover(), nil);
  EXPECT_TRUE(tramoya::escondida());
  auto const& lineas = tramoya::diario();
  EXPECT_LT(std::ranges::find(lineas, "popover closes"), std::ranges::find(lineas, "hide"));
}

TEST_F(EnLosBordes, trasEscapeUnClicMuestraElPanelComoEstaba) {
  abrirElPanel();
  escribir("2");
  teclear(golpe::escape());
  tramoya::avanzar(unRato);
  tramoya::pulsarItem(Boton::izquierdo);
  correr();
  ASSERT_NE(tramoya::popover(), nil);
  EXPECT_FALSE(tramoya::escondida());
  EXPECT_EQ(busqueda(), "2");
}

TEST_F(EnLosBordes, escondidoElProgramaLosAjustesLoTraen) {
  abrirElPanel();
  teclear(golpe::escape());
  abrirLosAjustes();
  EXPECT_FALSE(tramoya::escondida());
}

TEST_F(EnLosBordes, losAtajosValenEnUnTecladoSinLetrasLatinas) {
  abrirElPanel();
  teclear({.caracter = "с", .modificadores = NSEventModifierFlagCommand, .latino = "c"});
  EXPECT_EQ(portapapeles.contenido, "s0");
  teclear({.caracter = "й", .modificadores = NSEventModifierFlagCommand, .latino = "q"});
  EXPECT_TRUE(tramoya::terminada());
}

TEST_F(EnLosBordes, conLetrasLatinasVaLaDelTecladoDeLaPersona) {
  abrirElPanel();
  teclear({.caracter = "a", .modificadores = NSEventModifierFlagCommand, .latino = "q"});
  EXPECT_FALSE(tramoya::terminada());
}

TEST_F(EnLosBordes, unaOrdenSinTeclaDetrasSeHacePorSuNombre) {
  abrirElPanel();
  ordenar("moveDown:");
  ordenar("moveDown:");
  ordenar("moveUp:");
  EXPECT_EQ(*modelo->seleccion(), "claude:s1");
  ordenar("insertNewline:");
  EXPECT_EQ(ejecutor.llamadas().back().back(), "claude -r 's1'");
  ordenar("cancelOperation:");
  EXPECT_TRUE(tramoya::escondida());
}

TEST_F(EnLosBordes, lasDemasOrdenesSonDelCampo) {
  abrirElPanel();
  ordenar("deleteBackward:");
  EXPECT_EQ(tramoya::veces("editor does deleteBackward:"), 1U);
}

TEST_F(EnLosBordes, unLectorQuePulsaElItemNoHeredaElUltimoClic) {
  arrancar();
  tramoya::pulsarItem(Boton::derecho);
  tramoya::pulsarSinEvento(tramoya::itemDeEstado().button);
  EXPECT_EQ(tramoya::menusAbiertos().size(), 1U);
  EXPECT_NE(tramoya::popover(), nil);
}

TEST_F(EnLosBordes, unLectorQuePulsaElItemNoHeredaUnClicDeOtraVentana) {
  abrirLosAjustes();
  @autoreleasepool {
    NSEvent* const derecho = [NSEvent deTipo:NSEventTypeRightMouseUp modificadores:0];
    [derecho enVentana:ventanaDeAjustes() lugar:NSMakePoint(5, 5)];
    [NSApplication.sharedApplication ponerEvento:derecho];
    tramoya::pulsarSinEvento(tramoya::itemDeEstado().button);
  }
  EXPECT_EQ(tramoya::menusAbiertos().size(), 0U);
  EXPECT_NE(tramoya::popover(), nil);
}

TEST_F(EnLosBordes, cerrarLosAjustesDevuelveElTecladoAlProgramaDeAntes) {
  abrirLosAjustes();
  teclear(golpe::mando("w"));
  EXPECT_FALSE(tramoya::activa());
}

TEST_F(EnLosBordes, cerrarLosAjustesConElPanelAbiertoNoLoEsconde) {
  abrirLosAjustes();
  NSWindow* const ventana = ventanaDeAjustes();
  abrirElPanel();
  [ventana close];
  correr();
  EXPECT_FALSE(tramoya::escondida());
}

TEST_F(EnLosBordes, losAjustesCerradosYAbiertosEnSeguidaSiguenALaVista) {
  abrirLosAjustes();
  [ventanaDeAjustes() close];
  abrirLosAjustes();
  EXPECT_FALSE(tramoya::escondida());
}

TEST_F(EnLosBordes, elCampoNoCompletaLoQueSeEscribe) {
  abrirElPanel();
  EXPECT_FALSE(campo().automaticTextCompletionEnabled);
}

TEST_F(EnLosBordes, lasBarrasDeLaBandaNoEstrechanSusTarjetas) {
  abrirElPanel();
  auto* const banda = (NSScrollView*)tramoya::vista(panel(), NSClassFromString(@"BandaDeAvisos"));
  EXPECT_EQ(banda.scrollerStyle, NSScrollerStyleOverlay);
}

}  // namespace
}  // namespace zorve
