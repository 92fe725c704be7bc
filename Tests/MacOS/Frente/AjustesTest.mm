#import "MacOS/Frente/Frente.h"

namespace zorve {
namespace {

namespace golpe = tramoya::golpe;

class DeLosAjustes : public Frente {
 protected:
  DeLosAjustes() { abrirLosAjustes(); }
  void pulsar(std::string const& titulo) {
    ASSERT_NE(opcion(titulo), nil) << titulo;
    tramoya::pulsar(opcion(titulo));
    correr();
  }
};

TEST_F(DeLosAjustes, laVentanaTieneElTecladoYElProgramaEstaDelante) {
  EXPECT_TRUE([ventanaDeAjustes() isKeyWindow]);
  EXPECT_TRUE(tramoya::activa());
}

TEST_F(DeLosAjustes, laVentanaNoCambiaDeMedidaYSeCentraUnaVez) {
  EXPECT_EQ(tramoya::veces("window centred"), 1U);
  EXPECT_EQ(tramoya::veces("window 32775"), 1U);
  [ventanaDeAjustes() close];
  abrirLosAjustes();
  EXPECT_EQ(tramoya::veces("window centred"), 1U);
}

TEST_F(DeLosAjustes, mideSeiscientosVeintePorCuatrocientosSesenta) {
  auto const lugar = tramoya::lugar(tramoya::vista(ajustesALaVista(), NSClassFromString(@"VistaDeAjustes")));
  ASSERT_TRUE(lugar.has_value());
  EXPECT_EQ(lugar->size.width, 620);
  EXPECT_EQ(lugar->size.height, 460);
}

TEST_F(DeLosAjustes, lasSeccionesCambianYLaElegidaSeGuarda) {
  pulsar("About");
  EXPECT_TRUE(aLaVista("Zorve 1.2", ajustesALaVista()));
  EXPECT_TRUE(marcada("About"));
  [ventanaDeAjustes() close];
  abrirLosAjustes();
  EXPECT_TRUE(aLaVista("Zorve 1.2", ajustesALaVista()));
}

TEST_F(DeLosAjustes, mandoWYEscapeCierran) {
  teclear(golpe::mando("w"));
  EXPECT_EQ(ventanaDeAjustes(), nil);
  abrirLosAjustes();
  teclear(golpe::escape());
  EXPECT_EQ(ventanaDeAjustes(), nil);
}

TEST_F(DeLosAjustes, mandoQTerminaYConMayusculasNoHaceNada) {
  teclear(golpe::mando("w", NSEventModifierFlagShift));
  EXPECT_NE(ventanaDeAjustes(), nil);
  teclear(golpe::mando("q", NSEventModifierFlagShift));
  EXPECT_FALSE(tramoya::terminada());
  teclear(golpe::mando("q"));
  EXPECT_TRUE(tramoya::terminada());
}

TEST_F(DeLosAjustes, unaTeclaDeNadieSuena) {
  teclear({"z"});
  EXPECT_EQ(tramoya::veces("beep"), 1U);
}

TEST_F(DeLosAjustes, elArranqueSeEnciende) {
  EXPECT_FALSE(marcada("Open Zorve at login"));
  pulsar("Open Zorve at login");
  EXPECT_TRUE(inicio.encendido);
  EXPECT_TRUE(marcada("Open Zorve at login"));
  EXPECT_EQ(tramoya::utf8(opcion("Open Zorve at login").accessibilityRole), "AXCheckBox");
}

TEST_F(DeLosAjustes, elArranqueQueFallaMuestraSuBandaYQuedaApagado) {
  inicio.fallo = "not allowed";
  pulsar("Open Zorve at login");
  EXPECT_FALSE(marcada("Open Zorve at login"));
  EXPECT_TRUE(aLaVista(
      "Could not change the launch-at-login setting: not allowed. Usually because Zorve.app is not in "
      "/Applications.",
      ajustesALaVista()));
}

TEST_F(DeLosAjustes, elegirEspanolCambiaVentanaPanelYMenuDeUnaVez) {
  pulsar("Español");
  EXPECT_TRUE(marcada("Español"));
  EXPECT_TRUE(aLaVista("Abrir Zorve al iniciar sesión", ajustesALaVista()));
  tramoya::pulsarItem(tramoya::Boton::derecho);
  EXPECT_EQ(tramoya::menusAbiertos().back().front(), "Ajustes…");
  abrirElPanel();
  EXPECT_TRUE(aLaVista("mover", panel()));
}

TEST_F(DeLosAjustes, elegirUnaTerminalLaMarca) {
  pulsar("Terminal");
  EXPECT_TRUE(marcada("Whichever Zorve picks"));
  pulsar("Dos");
  EXPECT_TRUE(marcada("Dos"));
  EXPECT_FALSE(marcada("Whichever Zorve picks"));
  EXPECT_EQ(eleccionGuardada(preferencias), "com.dos");
}

TEST_F(DeLosAjustes, loElegidoEnOtraParteSeVeAlAbrirDeNuevo) {
  pulsar("Terminal");
  [ventanaDeAjustes() close];
  ASSERT_TRUE(elegir(preferencias, "com.dos"));
  abrirLosAjustes();
  EXPECT_TRUE(marcada("Dos"));
}

TEST_F(DeLosAjustes, unaTerminalElegidaQueYaNoEstaMuestraSuBandaYNadaMarcado) {
  pulsar("Terminal");
  [ventanaDeAjustes() close];
  ASSERT_TRUE(elegir(preferencias, "com.tres"));
  abrirLosAjustes();
  EXPECT_FALSE(marcada("Uno"));
  EXPECT_FALSE(marcada("Dos"));
  EXPECT_GE(tramoya::vistas(ajustesALaVista(), NSClassFromString(@"TarjetaDeAviso")).count, 1U);
}

TEST_F(DeLosAjustes, lasFilasSiguenSiendoLasMismasYElTecladoSigueEnLaSuya) {
  NSButton* const fila = opcion("Español");
  [ventanaDeAjustes() makeFirstResponder:fila];
  teclear({" "});
  EXPECT_EQ(opcion("Español"), fila);
  EXPECT_EQ(ventanaDeAjustes().firstResponder, fila);
}

TEST_F(DeLosAjustes, unLectorOyeLasOpcionesComoBotonesDeRadio) {
  EXPECT_EQ(tramoya::utf8(opcion("English").accessibilityRole), "AXRadioButton");
  EXPECT_EQ(tramoya::utf8(opcion("English").accessibilityLabel), "English");
  EXPECT_TRUE(tramoya::pulsarSinEvento(opcion("Español")));
  EXPECT_EQ(*idioma.idioma(), Idioma::es);
}

TEST_F(DeLosAjustes, elClicEnCualquierParteDeLaFilaEsDeLaFila) {
  for (auto const* titulo : {"English", "About"}) {
    NSButton* const fila = opcion(titulo);
    EXPECT_EQ([fila hitTest:NSMakePoint(3, 3)], fila);
    EXPECT_EQ([fila focusRingMaskBounds].size.width, fila.bounds.size.width);
    fila.hidden = YES;
    EXPECT_EQ([fila hitTest:NSMakePoint(3, 3)], nil);
  }
}

TEST_F(DeLosAjustes, acercaDeDiceLaVersionYComoCerrar) {
  pulsar("About");
  EXPECT_TRUE(aLaVista("To quit Zorve: ⌘Q", ajustesALaVista()));
}

TEST_F(DeLosAjustes, sinTerminalesLoDice) {
  [ventanaDeAjustes() close];
  soltar();
  ajustar({}, std::nullopt);
  abrirLosAjustes();
  pulsar("Terminal");
  EXPECT_TRUE(aLaVista("No supported terminal was found on this Mac.", ajustesALaVista()));
}

TEST_F(DeLosAjustes, elVidrioSigueActivoCuandoLaVentanaNoEstaDelante) {
  auto* const efecto = (NSVisualEffectView*)tramoya::vista(ajustesALaVista(), NSVisualEffectView.class);
  ASSERT_NE(efecto, nil);
  efecto.state = static_cast<NSVisualEffectState>(0);
  abrirElPanel();
  EXPECT_FALSE([ventanaDeAjustes() isKeyWindow]);
  EXPECT_EQ(efecto.state, NSVisualEffectStateActive);
}

}  // namespace
}  // namespace zorve
