#import "ZorveApp/AppKit/PieDelPanel.h"

#import "ZorveApp/AppKit/Pintura.h"
#import "ZorveApp/AppKit/TeclaDibujada.h"
#include "ZorvePlatform/MacOS/Cadenas.h"

namespace Estilo = zorve::Estilo;
namespace Medidas = zorve::Medidas;

namespace {

constexpr CGFloat margen = 14;
constexpr CGFloat trasTecla = 6;
constexpr CGFloat trasPalabra = 12;

NSFont* letra() { return [NSFont systemFontOfSize:Medidas::letraDelPie]; }

NSButton* engranaje() {
  NSImage* const dibujo = [NSImage imageWithSystemSymbolName:@"gearshape" accessibilityDescription:nil];
  NSButton* const boton = [[NSButton alloc] initWithFrame:NSZeroRect];
  boton.bordered = NO;
  boton.image = dibujo;
  boton.imagePosition = NSImageOnly;
  boton.contentTintColor = zorve::colorLegible(Estilo::textoTenue);
  return boton;
}

}  // namespace

@implementation PieDelPanel {
  zorve::PanelView* _panel;
  NSStackView* _fila;
  NSArray<TeclaDibujada*>* _teclas;
  NSArray<NSTextField*>* _palabras;
  NSTextField* _terminal;
  NSButton* _ajustes;
}

- (instancetype)initConPanel:(zorve::PanelView&)panel {
  if ((self = [super initWithFrame:NSZeroRect])) {
    _panel = &panel;
    _terminal = zorve::rotulo(letra(), Estilo::textoTenue);
    [_terminal setContentCompressionResistancePriority:NSLayoutPriorityDefaultLow
                                        forOrientation:NSLayoutConstraintOrientationHorizontal];
    _ajustes = engranaje();
    _ajustes.target = self;
    _ajustes.action = @selector(clicEnAjustes:);
    [self hacerLeyenda];
    [self colocar];
  }
  return self;
}

- (void)hacerLeyenda {
  NSMutableArray<TeclaDibujada*>* const teclas = [NSMutableArray array];
  NSMutableArray<NSTextField*>* const palabras = [NSMutableArray array];
  _fila = [[NSStackView alloc] initWithFrame:NSZeroRect];
  _fila.spacing = trasTecla;
  for (std::size_t i = 0; i < _panel->leyenda().size(); ++i) {
    TeclaDibujada* const tecla = [[TeclaDibujada alloc] initWithFrame:NSZeroRect];
    NSTextField* const palabra = zorve::rotulo(letra(), Estilo::textoTenue);
    [palabra setContentCompressionResistancePriority:NSLayoutPriorityRequired
                                      forOrientation:NSLayoutConstraintOrientationHorizontal];
    [_fila addArrangedSubview:tecla];
    [_fila addArrangedSubview:palabra];
    [_fila setCustomSpacing:trasPalabra afterView:palabra];
    [teclas addObject:tecla];
    [palabras addObject:palabra];
  }
  _teclas = teclas;
  _palabras = palabras;
}

- (void)colocar {
  LineaFina* const linea = [[LineaFina alloc] initWithFrame:NSZeroRect];
  for (NSView* vista in @[ linea, _fila, _terminal, _ajustes ]) zorve::colgar(vista, self);
  [NSLayoutConstraint activateConstraints:@[
    [self.heightAnchor constraintEqualToConstant:Medidas::altoDelPie],
    [linea.topAnchor constraintEqualToAnchor:self.topAnchor],
    [linea.leadingAnchor constraintEqualToAnchor:self.leadingAnchor],
    [linea.trailingAnchor constraintEqualToAnchor:self.trailingAnchor],
    [_fila.leadingAnchor constraintEqualToAnchor:self.leadingAnchor constant:margen],
    [_fila.centerYAnchor constraintEqualToAnchor:self.centerYAnchor],
    [_terminal.leadingAnchor constraintGreaterThanOrEqualToAnchor:_fila.trailingAnchor constant:trasPalabra],
    [_terminal.trailingAnchor constraintEqualToAnchor:_ajustes.leadingAnchor constant:-trasTecla],
    [_terminal.centerYAnchor constraintEqualToAnchor:self.centerYAnchor],
    [_ajustes.trailingAnchor constraintEqualToAnchor:self.trailingAnchor constant:-margen],
    [_ajustes.centerYAnchor constraintEqualToAnchor:self.centerYAnchor],
  ]];
}

- (void)actualizar {
  auto const leyenda = _panel->leyenda();
  for (std::size_t i = 0; i < leyenda.size(); ++i) {
    _teclas[i].texto = zorve::cadena(leyenda[i].tecla);
    _palabras[i].stringValue = zorve::cadena(leyenda[i].palabra);
  }
  _terminal.stringValue = zorve::cadena(_panel->terminal());
  _terminal.toolTip = _terminal.stringValue;
  _ajustes.toolTip = zorve::cadena(_panel->ayudaAjustes());
  _ajustes.accessibilityLabel = zorve::cadena(_panel->nombreAjustes());
}

- (void)clicEnAjustes:(nullable id)quien {
  _panel->clicEnAjustes();
}

@end
