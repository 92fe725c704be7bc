#import "ZorveApp/AppKit/ControladorDelPanel.h"

#include <utility>
#include <vector>

#import "ZorveApp/AppKit/BandaDeAvisos.h"
#import "ZorveApp/AppKit/CampoDeBusqueda.h"
#import "ZorveApp/AppKit/ListaDeSesiones.h"
#import "ZorveApp/AppKit/PieDelPanel.h"
#import "ZorveApp/AppKit/Pintura.h"
#import "ZorveApp/AppKit/RaizConTeclas.h"
#import "ZorveApp/AppKit/Teclas.h"
#import "ZorveApp/AppKit/VidrioDeFondo.h"
#include "ZorvePlatform/MacOS/Cadenas.h"

namespace Medidas = zorve::Medidas;

@implementation ControladorDelPanel {
  zorve::PanelView* _panel;
  CampoDeBusqueda* _busqueda;
  BandaDeAvisos* _banda;
  ListaDeSesiones* _lista;
  PieDelPanel* _pie;
  VidrioDeFondo* _vidrio;
  std::vector<zorve::Suscripcion> _suscripciones;
  BOOL _pedida;
}

- (instancetype)initConPanel:(zorve::PanelView&)panel {
  if ((self = [super initWithNibName:nil bundle:nil])) {
    _panel = &panel;
  }
  return self;
}

- (void)loadView {
  NSRect const marco = NSMakeRect(0, 0, Medidas::panel.ancho, Medidas::panel.alto);
  auto* const panel = _panel;
  RaizConTeclas* const raiz = [[RaizConTeclas alloc] initWithFrame:marco];
  raiz.alPulsar = ^BOOL(zorve::Pulsacion const& pulsacion) {
    return panel->tecla(pulsacion) ? YES : NO;
  };
  _vidrio = [[VidrioDeFondo alloc] initWithFrame:marco];
  _busqueda = [[CampoDeBusqueda alloc] initWithFrame:NSZeroRect];
  _busqueda.campo.delegate = self;
  _banda = [[BandaDeAvisos alloc] initWithFrame:NSZeroRect];
  _lista = [[ListaDeSesiones alloc] initConPanel:*_panel];
  _pie = [[PieDelPanel alloc] initConPanel:*_panel];
  zorve::llenar(_vidrio, raiz);
  [self apilar:@[ _busqueda, _banda, _lista, _pie ] en:raiz];
  [NSLayoutConstraint activateConstraints:@[
    [raiz.widthAnchor constraintEqualToConstant:Medidas::panel.ancho],
    [raiz.heightAnchor constraintEqualToConstant:Medidas::panel.alto],
  ]];
  self.view = raiz;
}

- (void)apilar:(NSArray<NSView*>*)vistas en:(NSView*)raiz {
  NSLayoutYAxisAnchor* arriba = raiz.topAnchor;
  for (NSView* vista in vistas) {
    zorve::colgar(vista, raiz);
    [NSLayoutConstraint activateConstraints:@[
      [vista.topAnchor constraintEqualToAnchor:arriba],
      [vista.leadingAnchor constraintEqualToAnchor:raiz.leadingAnchor],
      [vista.trailingAnchor constraintEqualToAnchor:raiz.trailingAnchor],
    ]];
    arriba = vista.bottomAnchor;
  }
  [arriba constraintEqualToAnchor:raiz.bottomAnchor].active = YES;
}

- (void)viewDidLoad {
  [super viewDidLoad];
  __weak ControladorDelPanel* const debil = self;
  _suscripciones = _panel->observar([debil] { [debil pedirActualizacion]; });
}

- (void)viewWillAppear {
  [super viewWillAppear];
  [self actualizar];
}

- (void)viewDidAppear {
  [super viewDidAppear];
  [_vidrio reactivar];
  [self.view.window makeFirstResponder:_busqueda.campo];
  _panel->aparecer();
}

/// However many properties change in one turn of the main queue, the views are brought up to date once.
- (void)pedirActualizacion {
  if (_pedida) return;
  _pedida = YES;
  __weak ControladorDelPanel* const debil = self;
  dispatch_async(dispatch_get_main_queue(), ^{
    [debil actualizar];
  });
}

- (void)actualizar {
  _pedida = NO;
  // While the field is being edited it is the one that writes: an input method may be composing in it.
  if (_busqueda.campo.currentEditor == nil) {
    _busqueda.campo.stringValue = zorve::cadena(_panel->consulta());
  }
  [_banda mostrar:_panel->banda()];
  [_lista actualizar];
  [_pie actualizar];
}

- (void)controlTextDidChange:(NSNotification*)nota {
  _panel->escribirConsulta(zorve::textoDe(_busqueda.campo.stringValue));
}

/// Keys reach this only after the input method has had them; voices and devices send orders without a key.
- (BOOL)control:(NSControl*)control textView:(NSTextView*)editor doCommandBySelector:(SEL)orden {
  NSEvent* const evento = NSApplication.sharedApplication.currentEvent;
  if (evento.type == NSEventTypeKeyDown) return [static_cast<RaizConTeclas*>(self.view) probar:evento];
  auto const pulsacion = zorve::pulsacionDeOrden(orden);
  return pulsacion && _panel->tecla(*pulsacion) ? YES : NO;
}

@end
