#import "ZorveApp/AppKit/Delegado.h"

#import <QuartzCore/QuartzCore.h>

#include <optional>

#import "ZorveApp/AppKit/CaraMac.h"
#import "ZorveApp/AppKit/ClicsDelItem.h"
#import "ZorveApp/AppKit/ControladorDeAjustes.h"
#import "ZorveApp/AppKit/ControladorDelPanel.h"
#import "ZorveApp/AppKit/MarcaDeBarra.h"
#import "ZorveApp/AppKit/MenuDeEdicion.h"
#import "ZorveApp/AppKit/OyenteGlobal.h"
#import "ZorveApp/AppKit/Pintura.h"
#include "ZorveApp/Estilo.h"
#include "ZorvePlatform/MacOS/Cadenas.h"

@implementation Delegado {
  std::optional<zorve::ColaboradoresDelDelegado> _con;
  std::optional<zorve::CaraMac> _cara;
  std::optional<zorve::ItemDeEstado> _reglas;
  zorve::ClicsDelItem _clics;
  std::optional<zorve::OyenteGlobal> _clicsDerechos;
  std::optional<zorve::OyenteGlobal> _pulsacionesFuera;
  NSStatusItem* _item;
  NSPopover* _popover;
  ControladorDeAjustes* _ajustes;
}

- (instancetype)initCon:(zorve::ColaboradoresDelDelegado const&)con {
  if ((self = [super init])) {
    _con.emplace(con);
    _popover = [[NSPopover alloc] init];
    _ajustes = [[ControladorDeAjustes alloc] initConValores:con.ajustes];
    [self instalarAcciones];
    _cara.emplace(self);
    _reglas.emplace(*_cara, con.estado, con.idioma, con.despachador, con.primerArranque);
  }
  return self;
}

- (void)instalarAcciones {
  __weak Delegado* const debil = self;
  _con->panel.acciones = {.esconder = [debil] { [debil esconder]; },
                          .salir = [] { [NSApplication.sharedApplication terminate:nil]; },
                          .mostrarDirectorio =
                              [](std::string const& ruta) {
                                [NSWorkspace.sharedWorkspace
                                    openURL:[NSURL fileURLWithPath:zorve::cadena(ruta)]];
                              }};
  _ajustes.alCerrar = ^{
    [debil cerradosLosAjustes];
  };
}

- (void)applicationDidFinishLaunching:(NSNotification*)nota {
  NSApplication.sharedApplication.mainMenu = zorve::menuDeEdicion();
  [self prepararPanel];
  [self prepararItem];
  _reglas->mostrarElPanelSiEsLaPrimeraVez();
}

- (void)prepararPanel {
  _popover.contentSize = NSMakeSize(zorve::Medidas::panel.ancho, zorve::Medidas::panel.alto);
  _popover.behavior = NSPopoverBehaviorTransient;
  _popover.delegate = self;
  _popover.appearance = [NSAppearance appearanceNamed:NSAppearanceNameDarkAqua];
  _popover.contentViewController = [[ControladorDelPanel alloc] initConPanel:_con->panel];
}

- (void)prepararItem {
  _item = [NSStatusBar.systemStatusBar statusItemWithLength:NSVariableStatusItemLength];
  NSStatusBarButton* const boton = _item.button;
  boton.image = zorve::MarcaDeBarra::imagen();
  boton.accessibilityLabel = @"Zorve";
  boton.target = self;
  boton.action = @selector(clickEnLaBarra:);
  [boton sendActionOn:NSEventMaskLeftMouseUp | NSEventMaskRightMouseUp];
  __weak Delegado* const debil = self;
  _clicsDerechos.emplace(NSEventMaskRightMouseUp, ^(NSEvent* evento) {
    [debil clicDerechoDeOtros:evento];
  });
}

- (void)clickEnLaBarra:(nullable id)quien {
  auto const clic = _clics.delBoton(NSApplication.sharedApplication.currentEvent, _item.button.window);
  if (clic.que == zorve::ClicsDelItem::Que::suyo) _reglas->clic(clic.evento);
}

/// Where the system draws the menu bar's items itself it hands right clicks to its own program.
- (void)clicDerechoDeOtros:(NSEvent*)evento {
  NSStatusBarButton* const boton = _item.button;
  if (boton == nil) return;
  NSRect const lugar = [boton.window convertRectToScreen:[boton convertRect:boton.bounds toView:nil]];
  if (!NSPointInRect(NSEvent.mouseLocation, lugar) || !_clics.deOyente(evento)) return;
  _reglas->clic(zorve::ClicEnLaBarra{.derecho = true});
}

- (BOOL)applicationShouldHandleReopen:(NSApplication*)aplicacion hasVisibleWindows:(BOOL)hayVentanas {
  return _reglas->reabrir() ? YES : NO;
}

- (BOOL)applicationSupportsSecureRestorableState:(NSApplication*)aplicacion {
  return YES;
}

- (BOOL)panelVisible {
  return _popover.shown;
}

- (void)mostrar {
  NSStatusBarButton* const boton = _item.button;
  if (boton == nil) return;
  zorve::traerElPrograma();
  [self oirPulsacionesFuera];
  [_popover showRelativeToRect:boton.bounds ofView:boton preferredEdge:NSRectEdgeMinY];
  [_popover.contentViewController.view.window makeKeyWindow];
  [self transparentar];
}

- (void)cerrarPanel {
  [_popover performClose:nil];
}

/// A transient popover of a program without windows does not hear of presses in other programs.
- (void)oirPulsacionesFuera {
  __weak Delegado* const debil = self;
  _pulsacionesFuera.emplace(NSEventMaskLeftMouseDown | NSEventMaskRightMouseDown | NSEventMaskOtherMouseDown,
                            ^(NSEvent*) {
                              [debil cerrarPanel];
                            });
}

- (void)popoverWillClose:(NSNotification*)nota {
  _clics.cerroElPanel(CACurrentMediaTime());
  _pulsacionesFuera.reset();
}

- (void)esconder {
  [self cerrarPanel];
  [NSApplication.sharedApplication hide:nil];
}

/// With nothing more to show the program that was in front before gets the keyboard back.
- (void)cerradosLosAjustes {
  NSApplication* const app = NSApplication.sharedApplication;
  if ([app isActive] && !_popover.shown) [app hide:nil];
}

/// The popover's own frame view, so that the panel's glass reaches every edge.
- (void)transparentar {
  NSView* const marco = _popover.contentViewController.view.superview;
  if (marco == nil) return;
  marco.wantsLayer = YES;
  marco.layer.backgroundColor = NSColor.clearColor.CGColor;
  marco.layer.opaque = NO;
  marco.window.opaque = NO;
  marco.window.backgroundColor = NSColor.clearColor;
}

/// The menu hangs on the item only while it is open, so that the next click is the panel's again.
- (void)mostrarMenu:(std::array<zorve::EntradaDelMenu, 3> const&)entradas {
  NSMenu* const menu = [[NSMenu alloc] init];
  for (auto const& entrada : entradas) [menu addItem:[self elementoDe:entrada]];
  _item.menu = menu;
  [_item.button performClick:nil];
  _item.menu = nil;
}

- (NSMenuItem*)elementoDe:(zorve::EntradaDelMenu const&)entrada {
  using Clase = zorve::EntradaDelMenu::Clase;
  if (entrada.clase == Clase::separador) return NSMenuItem.separatorItem;
  SEL const accion = entrada.clase == Clase::ajustes ? @selector(abrirAjustes:) : @selector(salir:);
  NSMenuItem* const elemento = [[NSMenuItem alloc] initWithTitle:zorve::cadena(entrada.titulo)
                                                          action:accion
                                                   keyEquivalent:zorve::cadena(entrada.tecla)];
  elemento.target = self;
  return elemento;
}

- (void)abrirAjustes:(nullable id)quien {
  _reglas->abrirAjustes();
}

- (void)salir:(nullable id)quien {
  _reglas->salir();
}

- (void)mostrarAjustes {
  [_ajustes mostrar];
}

@end
