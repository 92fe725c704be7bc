#import "ZorveApp/AppKit/FilaDeOpcion.h"

#include <functional>

#import "ZorveApp/AppKit/MarcaDeOpcion.h"
#import "ZorveApp/AppKit/Pintura.h"
#include "ZorvePlatform/MacOS/Cadenas.h"

namespace Estilo = zorve::Estilo;
namespace Medidas = zorve::Medidas;

namespace {

constexpr CGFloat xDeLaMarca = 14;
constexpr CGFloat xDelTitulo = 40;

}  // namespace

@implementation FilaDeOpcion {
  MarcaDeOpcion* _marca;
  NSTextField* _rotulo;
  NSTextField* _nota;
  NSLayoutConstraint* _alto;
  BOOL _marcada;
  std::function<void()> _accion;
}

- (instancetype)initWithFrame:(NSRect)marco {
  if ((self = [super initWithFrame:marco])) {
    self.title = @"";
    self.bordered = NO;
    [self setButtonType:NSButtonTypeMomentaryChange];
    self.target = self;
    self.action = @selector(elegida:);
    _marca = [[MarcaDeOpcion alloc] initWithFrame:NSZeroRect];
    _rotulo = zorve::rotulo([NSFont systemFontOfSize:Medidas::letraDeOpcion weight:NSFontWeightMedium],
                            Estilo::textoAlto);
    _nota = zorve::rotulo([NSFont systemFontOfSize:Medidas::letraDeNota], Estilo::textoTenue);
    _rotulo.accessibilityElement = NO;
    _nota.accessibilityElement = NO;
    [self colocar];
  }
  return self;
}

- (void)colocar {
  NSStackView* const textos = [NSStackView stackViewWithViews:@[ _rotulo, _nota ]];
  textos.orientation = NSUserInterfaceLayoutOrientationVertical;
  textos.alignment = NSLayoutAttributeLeading;
  textos.spacing = 2;
  zorve::colgar(_marca, self);
  zorve::colgar(textos, self);
  _alto = [self.heightAnchor constraintEqualToConstant:Medidas::altoDeOpcion];
  [NSLayoutConstraint activateConstraints:@[
    _alto,
    [_marca.leadingAnchor constraintEqualToAnchor:self.leadingAnchor constant:xDeLaMarca],
    [_marca.centerYAnchor constraintEqualToAnchor:self.centerYAnchor],
    [textos.leadingAnchor constraintEqualToAnchor:self.leadingAnchor constant:xDelTitulo],
    [textos.trailingAnchor constraintLessThanOrEqualToAnchor:self.trailingAnchor constant:-xDeLaMarca],
    [textos.centerYAnchor constraintEqualToAnchor:self.centerYAnchor],
  ]];
}

- (void)mostrar:(zorve::Opcion const&)opcion {
  _accion = opcion.accion;
  _marcada = opcion.marcada ? YES : NO;
  _marca.cuadro = opcion.cuadro ? YES : NO;
  _marca.marcada = _marcada;
  _rotulo.stringValue = zorve::cadena(opcion.titulo);
  _nota.stringValue = opcion.nota ? zorve::cadena(*opcion.nota) : @"";
  _nota.hidden = opcion.nota ? NO : YES;
  _alto.constant = opcion.nota ? Medidas::altoDeOpcionConNota : Medidas::altoDeOpcion;
  self.accessibilityRole = opcion.cuadro ? NSAccessibilityCheckBoxRole : NSAccessibilityRadioButtonRole;
  self.accessibilityLabel = _rotulo.stringValue;
  self.accessibilityHelp = _nota.stringValue;
  self.accessibilityValue = [NSNumber numberWithBool:_marcada];
  self.needsDisplay = YES;
}

/// The action may replace what this row shows, the action included.
- (void)elegida:(nullable id)quien {
  auto const accion = _accion;
  if (accion) accion();
}

- (void)drawRect:(NSRect)sucio {
  zorve::tarjeta(self.bounds, Medidas::radioDeOpcion,
                 _marcada ? Estilo::filaSeleccionada : Estilo::fondoDeOpcion,
                 _marcada ? Estilo::contornoDeFila : Estilo::linea);
}

- (nullable NSView*)hitTest:(NSPoint)punto {
  return [super hitTest:punto] == nil ? nil : self;
}

- (void)drawFocusRingMask {
  [[NSBezierPath bezierPathWithRoundedRect:self.bounds
                                   xRadius:Medidas::radioDeOpcion
                                   yRadius:Medidas::radioDeOpcion] fill];
}

- (NSRect)focusRingMaskBounds {
  return self.bounds;
}

@end
