#import "ZorveApp/AppKit/Delegado.h"

#import <QuartzCore/QuartzCore.h>

#include <optional>

#import "ZorveApp/AppKit/CaraMac.h"
#import "ZorveApp/AppKit/ControladorDeAjustes.h"
#import "ZorveApp/AppKit/ControladorDelPanel.h"
#import "ZorveApp/AppKit/MarcaDeBarra.h"
#import "ZorveApp/AppKit/MenuDeEdicion.h"
#include "ZorveApp/Estilo.h"
#include "ZorvePlatform/MacOS/Cadenas.h"

namespace {

std::optional<zorve::ClicEnLaBarra> clicDe(NSEvent* _Nullable evento) {
  if (evento == nil) return std::nullopt;
  return zorve::ClicEnLaBarra{.derecho = evento.type == NSEventTypeRightMouseUp,
                              .conControl = (evento.modifierFlags & NSEventModifierFlagControl) != 0};
}

}  // namespace

@implementation Delegado {
  std::optional<zorve::ColaboradoresDelDelegado> _con;
  std::optional<zorve::CaraMac> _cara;
  std::optional<zorve::ItemDeEstado> _reglas;
  NSStatusItem* _item;
  NSPopover* _popover;
  ControladorDeAjustes* _ajustes;
}

- (instancetype)initCon:(zorve::ColaboradoresDelDelegado const&)con {
  if ((self = [super init])) {
    _con.emplace(con);
    _popover = [[NSPopover alloc] init];
    _ajustes = [[ControladorDeAjustes alloc] initConModelo:con.ajustes idioma:con.idioma];
    _cara.emplace(self);
    _reglas.emplace(*_cara, con.estado, con.idioma, con.despachador, con.primerArranque);
  }
  return self;
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
  _popover.appearance = [NSAppearance appearanceNamed:NSAppearanceNameDarkAqua];
  _popover.contentViewController = [[ControladorDelPanel alloc] initConPanel:_con->panel
                                                                      modelo:_con->modelo
                                                                      idioma:_con->idioma];
}

- (void)prepararItem {
  _item = [NSStatusBar.systemStatusBar statusItemWithLength:NSVariableStatusItemLength];
  NSStatusBarButton* const boton = _item.button;
  boton.image = zorve::MarcaDeBarra::imagen();
  boton.accessibilityLabel = @"Zorve";
  boton.target = self;
  boton.action = @selector(clickEnLaBarra:);
  [boton sendActionOn:NSEventMaskLeftMouseUp | NSEventMaskRightMouseUp];
}

- (void)clickEnLaBarra:(nullable id)quien {
  _reglas->clic(clicDe(NSApplication.sharedApplication.currentEvent));
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
  [NSApplication.sharedApplication activateIgnoringOtherApps:YES];
  [_popover showRelativeToRect:boton.bounds ofView:boton preferredEdge:NSRectEdgeMinY];
  [_popover.contentViewController.view.window makeKeyWindow];
  [self transparentar];
}

- (void)cerrarPanel {
  [_popover performClose:nil];
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
