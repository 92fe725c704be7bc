#import "MacOS/Frente/Frente.h"

#import "ZorveApp/AppKit/CaraMac.h"

namespace zorve {
namespace {

using tramoya::Boton;
using DelDelegado = Frente;

constexpr double unRato = 1;

TEST_F(DelDelegado, alArrancarElItemTieneSuMarcaYSuNombre) {
  arrancar();
  NSStatusBarButton* const boton = tramoya::itemDeEstado().button;
  EXPECT_EQ(tramoya::utf8(boton.accessibilityLabel), "Zorve");
  EXPECT_EQ(boton.image.size.width, 18);
  EXPECT_EQ(boton.image.representations.count, 1U);
}

TEST_F(DelDelegado, unClicAbreElPanelYOtroLoCierra) {
  arrancar();
  tramoya::pulsarItem(Boton::izquierdo);
  EXPECT_NE(tramoya::popover(), nil);
  tramoya::avanzar(unRato);
  tramoya::pulsarItem(Boton::izquierdo);
  EXPECT_EQ(tramoya::popover(), nil);
}

TEST_F(DelDelegado, elPanelSaleDebajoDelItemConElTecladoEnLaBusqueda) {
  abrirElPanel();
  EXPECT_EQ(tramoya::veces("popover shows, edge 1"), 1U);
  EXPECT_TRUE(tramoya::activa());
  EXPECT_EQ(tramoya::ventanaConTeclado(), panel().window);
  EXPECT_NE(campo().currentEditor, nil);
}

TEST_F(DelDelegado, elMarcoDelPanelNoTapaSuVidrio) {
  abrirElPanel();
  NSView* const marco = panel().superview;
  EXPECT_TRUE(marco.wantsLayer);
  EXPECT_FALSE(marco.layer.opaque);
  EXPECT_FALSE([marco.window isOpaque]);
}

TEST_F(DelDelegado, elClicDerechoAbreElMenuYElPanelQuedaComoEstaba) {
  arrancar();
  tramoya::pulsarItem(Boton::derecho);
  EXPECT_EQ(tramoya::menusAbiertos(),
            (std::vector<std::vector<std::string>>{{"Settings…", "", "Quit Zorve"}}));
  EXPECT_EQ(tramoya::popover(), nil);
}

TEST_F(DelDelegado, elClicConControlAbreElMenu) {
  abrirElPanel();
  tramoya::pulsarItem(Boton::izquierdo, NSEventModifierFlagControl);
  EXPECT_EQ(tramoya::menusAbiertos().size(), 1U);
  EXPECT_NE(tramoya::popover(), nil);
}

TEST_F(DelDelegado, cerradoElMenuUnClicAbreElPanel) {
  arrancar();
  tramoya::pulsarItem(Boton::derecho);
  EXPECT_EQ(tramoya::itemDeEstado().menu, nil);
  tramoya::pulsarItem(Boton::izquierdo);
  EXPECT_NE(tramoya::popover(), nil);
  EXPECT_EQ(tramoya::menusAbiertos().size(), 1U);
}

TEST_F(DelDelegado, laEntradaDeAjustesCierraElPanelYLosMuestra) {
  abrirElPanel();
  tramoya::conElMenu([](NSMenu* menu) { tramoya::elegirDelMenu(menu, 0); });
  tramoya::pulsarItem(Boton::derecho);
  EXPECT_EQ(tramoya::popover(), nil);
  ASSERT_NE(ventanaDeAjustes(), nil);
  EXPECT_TRUE([ventanaDeAjustes() isKeyWindow]);
}

TEST_F(DelDelegado, laEntradaDeSalirTermina) {
  arrancar();
  tramoya::conElMenu([](NSMenu* menu) { tramoya::elegirDelMenu(menu, 2); });
  tramoya::pulsarItem(Boton::derecho);
  EXPECT_TRUE(tramoya::terminada());
}

TEST_F(DelDelegado, lasEntradasTienenSusAtajos) {
  arrancar();
  std::vector<std::string> teclas;
  tramoya::conElMenu([&teclas](NSMenu* menu) {
    for (NSMenuItem* una in menu.itemArray) teclas.push_back(tramoya::utf8(una.keyEquivalent));
  });
  tramoya::pulsarItem(Boton::derecho);
  EXPECT_EQ(teclas, (std::vector<std::string>{",", "", "q"}));
}

TEST_F(DelDelegado, elMenuSaleEnElIdiomaDeAhora) {
  arrancar();
  idioma.elegir(Idioma::es);
  tramoya::pulsarItem(Boton::derecho);
  EXPECT_EQ(tramoya::menusAbiertos().front().front(), "Ajustes…");
}

TEST_F(DelDelegado, abrirElProgramaDeNuevoMuestraElPanel) {
  arrancar();
  tramoya::abrirDeNuevo();
  EXPECT_NE(tramoya::popover(), nil);
}

TEST_F(DelDelegado, elPrimerArranqueMuestraElPanelUnTercioDeSegundoDespues) {
  ASSERT_TRUE(preferencias.quitar(PrimerArranque::clave).has_value());
  arrancar();
  despachador.avanzar(std::chrono::milliseconds{349});
  correr();
  EXPECT_EQ(tramoya::popover(), nil);
  despachador.avanzar(std::chrono::milliseconds{1});
  correr();
  EXPECT_NE(tramoya::popover(), nil);
}

TEST_F(DelDelegado, elSegundoArranqueNoMuestraElPanel) {
  arrancar();
  despachador.avanzar(std::chrono::seconds{5});
  correr();
  EXPECT_EQ(tramoya::popover(), nil);
}

TEST_F(DelDelegado, sinBotonEnLaBarraNoHayPanelNiMenuNiFallo) {
  tramoya::sistema().itemSinBoton = true;
  arrancar();
  tramoya::abrirDeNuevo();
  EXPECT_EQ(tramoya::popover(), nil);
}

TEST_F(DelDelegado, elEstadoDeLasVentanasSeRestauraConSeguridad) {
  arrancar();
  EXPECT_TRUE(
      [static_cast<id>(delegado) applicationSupportsSecureRestorableState:NSApplication.sharedApplication]);
}

TEST_F(DelDelegado, sueltoElDelegadoNadaSuyoQuedaVivo) {
  abrirElPanel();
  abrirLosAjustes();
  __weak NSViewController* controlador = nil;
  __weak NSWindow* ventana = nil;
  @autoreleasepool {
    ventana = ventanaDeAjustes();
    [ventana close];
    tramoya::avanzar(unRato);
    tramoya::pulsarItem(Boton::izquierdo);
    controlador = tramoya::popover().contentViewController;
    [tramoya::popover() performClose:nil];
  }
  soltar();
  EXPECT_EQ(controlador, nil);
  EXPECT_EQ(ventana, nil);
}

TEST_F(DelDelegado, aUnDelegadoQueYaNoEstaSeLePuedePedirTodo) {
  arrancar();
  CaraMac cara{delegado};
  soltar();
  cara.mostrarPanel();
  cara.cerrarPanel();
  cara.mostrarAjustes();
  cara.mostrarMenu(menuDelItem(Textos{Idioma::en}));
  EXPECT_FALSE(cara.panelVisible());
  EXPECT_EQ(tramoya::popover(), nil);
}

TEST_F(DelDelegado, losCambiosQueLleganSueltoElDelegadoNoTocanNada) {
  abrirElPanel();
  soltar();
  recargar(sesiones(3));
  idioma.elegir(Idioma::es);
  correr();
  EXPECT_EQ(modelo->resultado()->sesiones.size(), 3U);
}

TEST_F(DelDelegado, terminarMientrasSeCargaNoEspera) {
  arrancar();
  enDisco(sesiones(2));
  tramoya::pulsarItem(Boton::izquierdo);
  EXPECT_EQ(despachador.deFondo(), 1U);
  teclear(tramoya::golpe::mando("q"));
  EXPECT_TRUE(tramoya::terminada());
  soltar();
  correr();
}

}  // namespace
}  // namespace zorve
