#import "MacOS/Frente/Frente.h"

namespace zorve {
namespace {

namespace golpe = tramoya::golpe;

constexpr std::array<NSUInteger, 4> modificadores{NSEventModifierFlagShift, NSEventModifierFlagControl,
                                                  NSEventModifierFlagOption, NSEventModifierFlagCommand};

class DelPanel : public Frente {
 protected:
  DelPanel() {
    enDisco(sesiones(3));
    for (int i = 0; i < 3; ++i) {
      ejecutor.contestar({"/abrir", "/x", "claude -r 's" + std::to_string(i) + "'"},
                         ResultadoDeEjecucion{0, ""});
    }
    abrirElPanel();
  }
  std::string elegida() const { return modelo->seleccion()->value_or(""); }
};

TEST_F(DelPanel, midePorLoQueDicenSusAtaduras) {
  auto const lugar = tramoya::lugar(panel());
  ASSERT_TRUE(lugar.has_value());
  EXPECT_EQ(lugar->size.width, 440);
  EXPECT_EQ(lugar->size.height, 560);
}

TEST_F(DelPanel, laListaLlegaDeLaBusquedaAlPieYSinAvisosLaBandaNoOcupaNada) {
  auto const lista = tramoya::lugar(tramoya::vista(panel(), NSClassFromString(@"ListaDeSesiones")));
  auto const banda = tramoya::lugar(tramoya::vista(panel(), NSClassFromString(@"BandaDeAvisos")));
  auto const pie = tramoya::lugar(tramoya::vista(panel(), NSClassFromString(@"PieDelPanel")));
  ASSERT_TRUE(lista && banda && pie);
  EXPECT_EQ(banda->size.height, 0);
  EXPECT_EQ(NSMinY(*lista), NSMaxY(*banda));
  EXPECT_EQ(NSMaxY(*lista), NSMinY(*pie));
  EXPECT_EQ(NSMaxY(*pie), 560);
}

TEST_F(DelPanel, cadaFilaDiceTituloRutaYTiempo) {
  EXPECT_EQ(fila(0), (std::vector<std::string>{"title 0", "/x", "11d"}));
  EXPECT_EQ(titulo(2), "title 2");
}

TEST_F(DelPanel, escribirFiltra) {
  escribir("2");
  EXPECT_EQ(*modelo->consulta(), "2");
  EXPECT_EQ(titulo(0), "title 2");
  EXPECT_EQ([tabla() numberOfRows], 1);
}

TEST_F(DelPanel, lasFlechasMuevenLaSeleccion) {
  EXPECT_EQ(elegida(), "claude:s0");
  teclear(golpe::abajo());
  EXPECT_EQ(elegida(), "claude:s1");
  EXPECT_EQ([tabla() selectedRow], 1);
  teclear(golpe::arriba());
  EXPECT_EQ([tabla() selectedRow], 0);
}

TEST_F(DelPanel, lasFlechasConModificadoresNoSonDelPanel) {
  for (auto const modificador : modificadores) {
    teclear(golpe::abajo(modificador));
    EXPECT_EQ(elegida(), "claude:s0") << modificador;
  }
}

TEST_F(DelPanel, bloqMayusNoEstorbaALasFlechas) {
  teclear(golpe::abajo(NSEventModifierFlagCapsLock));
  EXPECT_EQ(elegida(), "claude:s1");
}

TEST_F(DelPanel, retornoAbreLaElegida) {
  teclear(golpe::retorno());
  EXPECT_EQ(ejecutor.llamadas().back(), (std::vector<std::string>{"/abrir", "/x", "claude -r 's0'"}));
}

TEST_F(DelPanel, introDelTecladoNumericoTambienAbre) {
  teclear(golpe::intro());
  EXPECT_EQ(abiertas(), 1U);
}

TEST_F(DelPanel, retornoConModificadoresNoAbre) {
  for (auto const modificador : modificadores) teclear(golpe::retorno(modificador));
  EXPECT_EQ(abiertas(), 0U);
}

TEST_F(DelPanel, retornoSostenidoAbreUnaVez) {
  auto sostenido = golpe::retorno();
  teclear(sostenido);
  sostenido.repetida = true;
  for (int i = 0; i < 5; ++i) teclear(sostenido);
  EXPECT_EQ(abiertas(), 1U);
}

TEST_F(DelPanel, mientrasSeComponeRetornoEsDelMetodoDeEntrada) {
  tramoya::componer("ni");
  teclear(golpe::retorno());
  EXPECT_EQ(abiertas(), 0U);
  EXPECT_EQ(busqueda(), "ni");
}

TEST_F(DelPanel, mientrasSeComponeEscapeEsDelMetodoDeEntrada) {
  tramoya::componer("ni");
  teclear(golpe::escape());
  EXPECT_FALSE(tramoya::escondida());
  EXPECT_EQ(busqueda(), "");
}

TEST_F(DelPanel, unaListaQueLlegaNoBorraLoQueSeCompone) {
  tramoya::componer("ni");
  recargar(sesiones(2));
  EXPECT_EQ(busqueda(), "ni");
  EXPECT_TRUE([static_cast<NSTextView*>(campo().currentEditor) hasMarkedText]);
}

TEST_F(DelPanel, mandoVPega) {
  tramoya::sistema().portapapeles = {"1"};
  teclear(golpe::mando("v"));
  EXPECT_EQ(*modelo->consulta(), "1");
}

TEST_F(DelPanel, mandoXCortaLoSeleccionado) {
  escribir("2");
  teclear(golpe::mando("a"));
  teclear(golpe::mando("x"));
  EXPECT_EQ(*modelo->consulta(), "");
  EXPECT_EQ(tramoya::sistema().portapapeles, std::vector<std::string>{"2"});
}

TEST_F(DelPanel, escapeEscondeElProgramaYLaBusquedaSigue) {
  escribir("2");
  teclear(golpe::escape());
  EXPECT_TRUE(tramoya::escondida());
  EXPECT_EQ(*modelo->consulta(), "2");
}

TEST_F(DelPanel, mandoRRefresca) {
  enDisco(sesiones(1));
  teclear(golpe::mando("r"));
  EXPECT_EQ([tabla() numberOfRows], 1);
}

TEST_F(DelPanel, mandoCCopiaElIdentificadorYLoDice) {
  teclear(golpe::mando("c"));
  EXPECT_EQ(portapapeles.contenido, "s0");
  EXPECT_TRUE(aLaVista("Copied: s0", panel()));
}

TEST_F(DelPanel, mandoQTermina) {
  teclear(golpe::mando("q"));
  EXPECT_TRUE(tramoya::terminada());
}

TEST_F(DelPanel, mandoComaAbreLosAjustesYCierraElPanel) {
  teclear(golpe::mando(","));
  EXPECT_NE(ventanaDeAjustes(), nil);
  EXPECT_EQ(tramoya::popover(), nil);
}

TEST_F(DelPanel, losAtajosConOtroModificadorNoSonDelPanel) {
  for (auto const* letra : {"r", "c", "q", ","}) {
    for (auto const modificador :
         {NSEventModifierFlagShift, NSEventModifierFlagOption, NSEventModifierFlagControl}) {
      teclear(golpe::mando(letra, modificador));
    }
  }
  EXPECT_FALSE(tramoya::terminada());
  EXPECT_EQ(portapapeles.copias, 0);
  EXPECT_EQ(ventanaDeAjustes(), nil);
}

TEST_F(DelPanel, losAtajosConBloqMayusTampoco) {
  teclear(golpe::mando("q", NSEventModifierFlagCapsLock));
  EXPECT_FALSE(tramoya::terminada());
}

TEST_F(DelPanel, sinElTecladoEnLaBusquedaLasTeclasLleganIgual) {
  [panel().window makeFirstResponder:nil];
  [panel().window makeFirstResponder:tramoya::vista(panel(), NSButton.class)];
  teclear(golpe::abajo());
  EXPECT_EQ(elegida(), "claude:s1");
}

TEST_F(DelPanel, unaTeclaDeNadieSuenaYNoHaceNada) {
  [panel().window makeFirstResponder:tramoya::vista(panel(), NSButton.class)];
  teclear({"z"});
  EXPECT_EQ(*modelo->consulta(), "");
  EXPECT_EQ(tramoya::veces("beep"), 1U);
}

TEST_F(DelPanel, unMensajeLargoSeParteEnLineasYDesplazaPasadosDoscientosPuntos) {
  enDisco(sesiones(1), {{IndexSource::history, std::string(200, 'a')}});
  modelo->refrescar();
  correr();
  NSScrollView* const banda = (NSScrollView*)tramoya::vista(panel(), NSClassFromString(@"BandaDeAvisos"));
  CGFloat const alta = tramoya::lugar(banda)->size.height;
  EXPECT_GT(alta, 40);
  EXPECT_FALSE(banda.hasVerticalScroller);
  enDisco(sesiones(1), {{IndexSource::history, std::string(5000, 'a')}});
  modelo->refrescar();
  correr();
  EXPECT_EQ(tramoya::lugar(banda)->size.height, 200);
  EXPECT_TRUE(banda.hasVerticalScroller);
}

TEST_F(DelPanel, losMismosMensajesNoSeHacenDeNuevo) {
  enDisco(sesiones(1), {{IndexSource::history, "uno"}});
  modelo->refrescar();
  correr();
  auto const veces = tramoya::veces("stack takes");
  modelo->refrescar();
  correr();
  EXPECT_EQ(tramoya::veces("stack takes"), veces);
}

TEST_F(DelPanel, elPieDiceLasTeclasYLaTerminal) {
  auto const textos = tramoya::rotulos(tramoya::vista(panel(), NSClassFromString(@"PieDelPanel")));
  EXPECT_EQ(textos,
            (std::vector<std::string>{"↑↓", "move", "↩", "open", "⌘R", "refresh", "Uno (the system's)"}));
}

TEST_F(DelPanel, elEngranajeAbreLosAjustes) {
  NSButton* const engranaje = (NSButton*)tramoya::vista(panel(), NSButton.class);
  EXPECT_EQ(tramoya::utf8(engranaje.accessibilityLabel), "Settings");
  EXPECT_EQ(tramoya::utf8(engranaje.toolTip), "Settings (⌘,)");
  tramoya::pulsar(engranaje);
  correr();
  EXPECT_NE(ventanaDeAjustes(), nil);
}

TEST_F(DelPanel, elIdiomaNuevoLlegaAlPanelAbierto) {
  idioma.elegir(Idioma::es);
  correr();
  EXPECT_TRUE(aLaVista("mover", panel()));
  EXPECT_FALSE(aLaVista("move", panel()));
}

TEST_F(DelPanel, variosCambiosDeUnaVezSeDibujanUnaVez) {
  escribir("t");
  auto const veces = tramoya::veces("table reloads");
  modelo->escribirConsulta("title 1");
  modelo->escribirConsulta("title 2");
  modelo->escribirConsulta("title");
  correr();
  EXPECT_LE(tramoya::veces("table reloads"), veces + 1);
}

TEST_F(DelPanel, loQueSeEscribioSigueAlAbrirDeNuevo) {
  escribir("2");
  [tramoya::popover() performClose:nil];
  tramoya::avanzar(1);
  abrirElPanel();
  EXPECT_EQ(busqueda(), "2");
  EXPECT_EQ(titulo(0), "title 2");
}

TEST_F(DelPanel, cadaVezQueSeAbreSeCarga) {
  [tramoya::popover() performClose:nil];
  enDisco(sesiones(1));
  tramoya::avanzar(1);
  abrirElPanel();
  EXPECT_EQ([tabla() numberOfRows], 1);
}

TEST_F(DelPanel, elCursorTieneElColorDeAcento) {
  EXPECT_NE(static_cast<NSTextView*>(campo().currentEditor).insertionPointColor, nil);
}

TEST_F(DelPanel, sinSesionesLoDiceEnSuLugar) {
  recargar({});
  EXPECT_TRUE(aLaVista("no sessions", panel()));
  EXPECT_TRUE([tabla() isHiddenOrHasHiddenAncestor]);
}

}  // namespace
}  // namespace zorve
