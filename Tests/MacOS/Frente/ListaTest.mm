#import "MacOS/Frente/Frente.h"

namespace zorve {
namespace {

namespace golpe = tramoya::golpe;

class DeLaLista : public Frente {
 protected:
  std::size_t filasHechas() const {
    return tramoya::vistas(tabla(), NSClassFromString(@"FondoDeFila")).count;
  }
  void abrirCon(std::size_t cuantas) {
    enDisco(sesiones(cuantas));
    abrirElPanel();
  }
  NSTableCellView* celda(NSInteger cual) const {
    return [[tabla() rowViewAtRow:cual makeIfNecessary:NO] viewAtColumn:0];
  }
};

TEST_F(DeLaLista, deCincoMilSesionesSoloExistenLasFilasALaVista) {
  abrirCon(5000);
  EXPECT_EQ([tabla() numberOfRows], 5000);
  EXPECT_LT(filasHechas(), 15U);
}

TEST_F(DeLaLista, alDesplazarseLasFilasSeUsanDeNuevo) {
  abrirCon(5000);
  auto const hechas = filasHechas();
  [tabla() desplazarA:4000];
  EXPECT_EQ(titulo(4000), "title 4000");
  EXPECT_EQ(titulo(0), "");
  EXPECT_LE(filasHechas(), hechas);
}

TEST_F(DeLaLista, laElegidaQuedaALaVista) {
  abrirCon(100);
  for (int i = 0; i < 40; ++i) teclear(golpe::abajo());
  EXPECT_EQ(titulo(40), "title 40");
  EXPECT_TRUE([tabla() rowViewAtRow:40 makeIfNecessary:NO].selected);
}

TEST_F(DeLaLista, quienSeDesplazoNoEsDevueltoPorUnaCargaIgual) {
  abrirCon(100);
  [tabla() desplazarA:50];
  modelo->refrescar();
  correr();
  EXPECT_EQ([tabla() primeraALaVista], 50);
}

TEST_F(DeLaLista, unClicEnUnaFilaAbreEsa) {
  abrirCon(3);
  [tabla() pulsarFila:2];
  correr();
  EXPECT_EQ(ejecutor.llamadas().back().back(), "claude -r 's2'");
  EXPECT_EQ([tabla() selectedRow], 2);
}

TEST_F(DeLaLista, unClicFueraDeLasFilasNoAbreNada) {
  abrirCon(3);
  [tabla() pulsarFila:-1];
  correr();
  EXPECT_EQ(abiertas(), 0U);
}

TEST_F(DeLaLista, quienUsaUnLectorAbreLaFilaQueOyo) {
  abrirCon(3);
  EXPECT_TRUE(tramoya::pulsarSinEvento(celda(1)));
  correr();
  EXPECT_EQ(ejecutor.llamadas().back().back(), "claude -r 's1'");
}

TEST_F(DeLaLista, unaFilaQueNoEstaEnLaTablaNoAbreNada) {
  abrirCon(3);
  @autoreleasepool {
    id const suelta = celda(2);
    recargar({});
    tramoya::pulsarSinEvento(suelta);
  }
  correr();
  EXPECT_EQ(abiertas(), 0U);
}

TEST_F(DeLaLista, entreElCambioDelModeloYElDibujoUnClicNoAbreOtra) {
  abrirCon(3);
  auto otras = sesiones(3);
  std::swap(otras[0], otras[2]);
  modelo->escribirResultado({otras, {}});
  [tabla() pulsarFila:0];
  despachador.correrTodo();
  EXPECT_EQ(abiertas(), 0U);
}

TEST_F(DeLaLista, laTablaPuedePreguntarPorUnaFilaQueElModeloYaNoTiene) {
  abrirCon(100);
  modelo->escribirResultado({sesiones(2), {}});
  [tabla() desplazarA:50];
  correr();
  EXPECT_EQ([tabla() numberOfRows], 2);
}

TEST_F(DeLaLista, alIrseTodasLasSesionesNoQuedaElegida) {
  abrirCon(3);
  escribir("nada de eso");
  EXPECT_EQ([tabla() selectedRow], -1);
  EXPECT_TRUE(aLaVista("no matches", panel()));
}

TEST_F(DeLaLista, lasFilasQueSiguenSonLasMismasParaUnLector) {
  abrirCon(3);
  id const antes = celda(0);
  auto unas = sesiones(3);
  unas[0].titulo = "otro";
  recargar(unas);
  EXPECT_EQ(celda(0), antes);
  EXPECT_EQ(titulo(0), "otro");
}

TEST_F(DeLaLista, unLectorOyeLaFilaEnUnaFrase) {
  auto viva = sesion("s0", "mine", "/Users/ana/x");
  viva.liveState = LiveState::busy;
  viva.conteoPrompts = 12;
  enDisco({viva});
  abrirElPanel();
  NSView* const una = celda(0);
  EXPECT_EQ(tramoya::utf8(una.accessibilityLabel), "mine, ~/x · working, 11d, 12 prompts");
  EXPECT_EQ(tramoya::utf8(una.accessibilityRole), "AXButton");
  EXPECT_TRUE(una.accessibilitySelected);
  EXPECT_EQ(fila(0), (std::vector<std::string>{"mine", "~/x", " · working", "11d", "12 prompts"}));
}

TEST_F(DeLaLista, elTituloHechoDeUnPromptLoDiceAlPasarPorEncima) {
  auto derivada = sesion("s0", "hello");
  derivada.tituloOrigen = TitleSource::derivedFromFirstPrompt;
  enDisco({derivada});
  abrirElPanel();
  NSTextField* const rotulo = [celda(0) textField];
  EXPECT_TRUE(tramoya::utf8(rotulo.toolTip).starts_with("Title derived"));
  EXPECT_TRUE(tramoya::utf8([static_cast<NSView*>(celda(0)) accessibilityHelp]).starts_with("Title derived"));
}

TEST_F(DeLaLista, laLineaNoEstaJuntoALaElegidaNiBajoLaUltima) {
  abrirCon(4);
  teclear(golpe::abajo());
  std::vector<bool> lineas;
  for (NSInteger i = 0; i < 4; ++i) {
    auto const dibujo = tramoya::dibujar([tabla() rowViewAtRow:i makeIfNecessary:NO]);
    lineas.push_back(std::ranges::any_of(dibujo, [](auto const& t) { return t.starts_with("fill rect"); }));
  }
  EXPECT_EQ(lineas, (std::vector<bool>{false, false, true, false}));
}

TEST_F(DeLaLista, unClicSecundarioAbreElMenuDeSuFilaSinAbrirla) {
  abrirCon(3);
  [tabla() pulsarDerechoEnFila:2];
  correr();
  EXPECT_EQ(tramoya::menusAbiertos().back(),
            (std::vector<std::string>{"Open", "Copy identifier", "Copy command that resumes it",
                                      "Copy directory", "Show directory"}));
  EXPECT_EQ([tabla() selectedRow], 2);
  EXPECT_EQ(abiertas(), 0U);
}

TEST_F(DeLaLista, fueraDeLasFilasNoHayMenu) {
  abrirCon(3);
  [tabla() pulsarDerechoEnFila:-1];
  EXPECT_TRUE(tramoya::menusAbiertos().empty());
}

TEST_F(DeLaLista, loElegidoEnElMenuSeHaceConSuFila) {
  enDisco({sesion("s0", "una"), sesion("s1", "otra", "/src/it's")});
  abrirElPanel();
  auto const elegir = [&](NSInteger cual) {
    tramoya::conElMenu([cual](NSMenu* menu) { tramoya::elegirDelMenu(menu, cual); });
    [tabla() pulsarDerechoEnFila:1];
    correr();
  };
  elegir(1);
  EXPECT_EQ(portapapeles.contenido, "s1");
  elegir(2);
  EXPECT_EQ(portapapeles.contenido, R"(cd '/src/it'\''s' && claude -r 's1')");
  elegir(3);
  EXPECT_EQ(portapapeles.contenido, "/src/it's");
  elegir(4);
  EXPECT_EQ(tramoya::veces("workspace opens /src/it's"), 1U);
  EXPECT_EQ(abiertas(), 0U);
  elegir(0);
  EXPECT_EQ(ejecutor.llamadas().back().back(), "claude -r 's1'");
}

TEST_F(DeLaLista, quienUsaUnLectorAbreElMenuDeLaFilaQueOyo) {
  abrirCon(3);
  tramoya::conElMenu([](NSMenu* menu) { tramoya::elegirDelMenu(menu, 1); });
  EXPECT_TRUE([static_cast<NSView*>(celda(1)) accessibilityPerformShowMenu]);
  correr();
  EXPECT_EQ(portapapeles.contenido, "s1");
}

TEST_F(DeLaLista, loQueSeBuscaSePintaDelAcento) {
  enDisco({sesion("s0", "Añadir un parser", "/Users/ana/parser")});
  abrirElPanel();
  NSTextField* const rotulo = [celda(0) textField];
  EXPECT_EQ(tramoya::atributo(rotulo, NSForegroundColorAttributeName, 0), nil);
  escribir("parser");
  EXPECT_EQ(titulo(0), "Añadir un parser");
  id const del = tramoya::atributo(rotulo, NSForegroundColorAttributeName, 0);
  id const suyo = tramoya::atributo(rotulo, NSForegroundColorAttributeName, 10);
  EXPECT_NE(suyo, nil);
  EXPECT_NE(suyo, del);
  EXPECT_EQ(tramoya::atributo(rotulo, NSForegroundColorAttributeName, 15), suyo);
  EXPECT_EQ(tramoya::atributo(rotulo, NSForegroundColorAttributeName, 9), del);
}

TEST_F(DeLaLista, laTablaNoTomaElTeclado) {
  abrirCon(3);
  EXPECT_TRUE(tabla().refusesFirstResponder);
}

}  // namespace
}  // namespace zorve
