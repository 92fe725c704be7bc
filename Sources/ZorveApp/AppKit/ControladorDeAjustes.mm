#import "ZorveApp/AppKit/ControladorDeAjustes.h"

#import "ZorveApp/AppKit/Pintura.h"
#import "ZorveApp/AppKit/VentanaDeAjustes.h"
#import "ZorveApp/AppKit/VistaDeAjustes.h"
#include "ZorvePlatform/MacOS/Cadenas.h"

namespace Medidas = zorve::Medidas;

@implementation ControladorDeAjustes {
  zorve::VistaAjustes* _valores;
  VentanaDeAjustes* _ventana;
  VistaDeAjustes* _vista;
}

- (instancetype)initConValores:(zorve::VistaAjustes&)valores {
  if ((self = [super init])) {
    _valores = &valores;
    __weak ControladorDeAjustes* const debil = self;
    _valores->acciones = {.cerrar = [debil] { [debil cerrar]; },
                          .salir = [] { [NSApplication.sharedApplication terminate:nil]; }};
  }
  return self;
}

- (void)mostrar {
  if (_ventana == nil) [self construir];
  _valores->aparecer();
  [_vista actualizar];
  zorve::traerElPrograma();
  [_ventana makeKeyAndOrderFront:nil];
}

- (void)cerrar {
  [_ventana close];
}

- (void)construir {
  NSRect const marco = NSMakeRect(0, 0, Medidas::ajustes.ancho, Medidas::ajustes.alto);
  _ventana = [[VentanaDeAjustes alloc]
      initWithContentRect:marco
                styleMask:NSWindowStyleMaskTitled | NSWindowStyleMaskClosable |
                          NSWindowStyleMaskMiniaturizable | NSWindowStyleMaskFullSizeContentView
                  backing:NSBackingStoreBuffered
                    defer:NO];
  _ventana.title = zorve::cadena(zorve::VistaAjustes::tituloDeLaVentana);
  _ventana.titlebarAppearsTransparent = YES;
  _ventana.titleVisibility = NSWindowTitleHidden;
  _ventana.opaque = NO;
  _ventana.backgroundColor = NSColor.clearColor;
  _ventana.appearance = [NSAppearance appearanceNamed:NSAppearanceNameDarkAqua];
  _ventana.releasedWhenClosed = NO;
  _ventana.delegate = self;
  [_ventana alPulsar:[self teclas]];
  NSView* const contenedor = [[NSView alloc] initWithFrame:marco];
  _vista = [[VistaDeAjustes alloc] initConValores:*_valores];
  zorve::llenar(_vista, contenedor);
  _ventana.contentView = contenedor;
  [_ventana center];
}

- (BOOL (^)(zorve::Pulsacion const&))teclas {
  __weak ControladorDeAjustes* const debil = self;
  return ^BOOL(zorve::Pulsacion const& pulsacion) {
    ControladorDeAjustes* const fuerte = debil;
    return fuerte != nil && [fuerte tecla:pulsacion];
  };
}

- (BOOL)tecla:(zorve::Pulsacion const&)pulsacion {
  return _valores->tecla(pulsacion) ? YES : NO;
}

- (void)windowWillClose:(NSNotification*)nota {
  __weak ControladorDeAjustes* const debil = self;
  dispatch_async(dispatch_get_main_queue(), ^{
    [debil avisarDelCierre];
  });
}

- (void)avisarDelCierre {
  if (![_ventana isVisible] && self.alCerrar != nil) self.alCerrar();
}

- (void)windowDidBecomeKey:(NSNotification*)nota {
  [_vista reactivar];
}

- (void)windowDidResignKey:(NSNotification*)nota {
  [_vista reactivar];
}

@end
