#import "MacOS/Frente/Frente.h"

#import "ZorveApp/AppKit/MarcaDeBarra.h"
#import "ZorveApp/AppKit/MarcaDeOpcion.h"
#import "ZorveApp/AppKit/Pintura.h"
#import "ZorveApp/AppKit/PuntoDeEstado.h"
#import "ZorveApp/AppKit/VidrioDeFondo.h"

namespace zorve {
namespace {

using Trazos = std::vector<std::string>;

class ElDibujo : public Frente {
 protected:
  static NSRect cuadro(CGFloat lado) { return NSMakeRect(0, 0, lado, lado); }
  static Trazos formas(NSView* vista) {
    Trazos salida;
    for (auto const& trazo : tramoya::dibujar(vista)) {
      if (trazo.find("colour") == std::string::npos) salida.push_back(trazo);
    }
    return salida;
  }
  static bool hay(Trazos const& trazos, std::string_view comienzo) {
    return std::ranges::any_of(trazos, [comienzo](auto const& t) { return t.starts_with(comienzo); });
  }
};

TEST_F(ElDibujo, elEstadoSeDibujaComoDiscoConHaloAroOAroTenue) {
  PuntoDeEstado* const punto = [[PuntoDeEstado alloc] initWithFrame:cuadro(16)];
  punto.estado = LiveState::busy;
  EXPECT_EQ(formas(punto), (Trazos{"fill oval 1 1 14 14", "fill oval 4 4 8 8"}));
  punto.estado = LiveState::idle;
  EXPECT_EQ(formas(punto), (Trazos{"stroke oval 5 5 6 6"}));
  punto.estado = LiveState::dead;
  EXPECT_EQ(formas(punto), (Trazos{"stroke oval 4.75 4.75 6.5 6.5"}));
  EXPECT_EQ([punto intrinsicContentSize].width, 16);
}

TEST_F(ElDibujo, laOpcionMarcadaTieneUnPuntoOUnaPalomita) {
  MarcaDeOpcion* const marca = [[MarcaDeOpcion alloc] initWithFrame:cuadro(16)];
  EXPECT_EQ(formas(marca).size(), 1U);
  marca.marcada = YES;
  EXPECT_EQ(formas(marca).back(), "fill oval 4 4 8 8");
  marca.cuadro = YES;
  EXPECT_EQ(formas(marca).back(), "stroke path move line line");
  EXPECT_GT([marca intrinsicContentSize].width, 0);
}

TEST_F(ElDibujo, laMarcaSeDibujaConSuElipseSuTrianguloYSusRectangulos) {
  VistaDeMarca* const marca = [[VistaDeMarca alloc] initWithFrame:cuadro(56)];
  auto const trazos = formas(marca);
  EXPECT_TRUE([marca isFlipped]);
  EXPECT_TRUE(hay(trazos, "fill oval"));
  EXPECT_TRUE(hay(trazos, "fill path move line line close"));
  EXPECT_TRUE(hay(trazos, "fill card"));
}

TEST_F(ElDibujo, masContrasteAclaraLosTextosDebiles) {
  MarcaDeOpcion* const marca = [[MarcaDeOpcion alloc] initWithFrame:cuadro(16)];
  auto const antes = tramoya::dibujar(marca);
  tramoya::sistema().masContraste = true;
  EXPECT_NE(tramoya::dibujar(marca), antes);
}

TEST_F(ElDibujo, menosTransparenciaHaceOpacoElFondo) {
  VidrioDeFondo* const vidrio = [[VidrioDeFondo alloc] initWithFrame:cuadro(100)];
  auto const antes = tramoya::dibujar(vidrio);
  EXPECT_TRUE(hay(antes, "gradient"));
  EXPECT_FALSE(antes.front().ends_with(" 1"));
  tramoya::sistema().menosTransparencia = true;
  EXPECT_TRUE(tramoya::dibujar(vidrio).front().ends_with(" 1"));
}

TEST_F(ElDibujo, elFondoSeDibujaDeNuevoCuandoLaPersonaCambiaEsasOpciones) {
  VidrioDeFondo* const vidrio = [[VidrioDeFondo alloc] initWithFrame:cuadro(100)];
  NSView* const tinte = vidrio.subviews[1];
  [tinte setValue:nil forKey:@"ensuciada"];
  [NSWorkspace.sharedWorkspace.notificationCenter
      postNotificationName:NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification
                    object:nil];
  EXPECT_NE([tinte valueForKey:@"ensuciada"], nil);
}

TEST_F(ElDibujo, unFondoQueYaNoEstaNoOyeEseCambio) {
  @autoreleasepool {
    VidrioDeFondo* const vidrio = [[VidrioDeFondo alloc] initWithFrame:cuadro(100)];
    [vidrio reactivar];
  }
  [NSWorkspace.sharedWorkspace.notificationCenter
      postNotificationName:NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification
                    object:nil];
}

TEST_F(ElDibujo, dondeElSistemaTieneVidrioSeUsaElSuyo) {
  tramoya::sistema().conVidrio = true;
  VidrioDeFondo* const vidrio = [[VidrioDeFondo alloc] initWithFrame:cuadro(100)];
  NSView* const suyo = tramoya::vista(vidrio, NSClassFromString(@"NSGlassEffectView"));
  ASSERT_NE(suyo, nil);
  EXPECT_EQ([[suyo valueForKey:@"style"] integerValue], 1);
  EXPECT_EQ(tramoya::vista(vidrio, NSVisualEffectView.class), nil);
  [vidrio reactivar];
}

TEST_F(ElDibujo, dondeNoLoTieneElMaterialEsElDeSusAvisosYEstaActivo) {
  VidrioDeFondo* const vidrio = [[VidrioDeFondo alloc] initWithFrame:cuadro(100)];
  auto* const efecto = (NSVisualEffectView*)tramoya::vista(vidrio, NSVisualEffectView.class);
  EXPECT_EQ(efecto.material, NSVisualEffectMaterialHUDWindow);
  efecto.state = static_cast<NSVisualEffectState>(0);
  [vidrio reactivar];
  EXPECT_EQ(efecto.state, NSVisualEffectStateActive);
}

TEST_F(ElDibujo, elPanelEnteroSeDibuja) {
  auto viva = sesion("s0", "viva");
  viva.liveState = LiveState::idle;
  enDisco({viva, sesion("s1", "otra")}, {{IndexSource::history, "un aviso"}});
  abrirElPanel();
  auto const trazos = tramoya::dibujar(panel());
  EXPECT_TRUE(hay(trazos, "gradient"));
  EXPECT_TRUE(hay(trazos, "stroke oval 5 5 6 6"));
  EXPECT_TRUE(hay(trazos, "fill oval 13 14 6 6"));
}

TEST_F(ElDibujo, losAjustesEnterosSeDibujanConLaElegidaSobreSuTarjeta) {
  abrirLosAjustes();
  auto const trazos = tramoya::dibujar(ajustesALaVista());
  EXPECT_TRUE(hay(trazos, "fill card"));
  EXPECT_TRUE(hay(trazos, "fill rect"));
  for (NSView* boton in tramoya::vistas(ajustesALaVista(), NSButton.class)) [boton drawFocusRingMask];
}

TEST_F(ElDibujo, unaLineaFinaMideUnPunto) {
  EXPECT_EQ([[[LineaFina alloc] initWithFrame:NSZeroRect] intrinsicContentSize].height, 1);
}

}  // namespace
}  // namespace zorve
