#import "ZorveApp/AppKit/FilaDeLaBarra.h"

#import "ZorveApp/AppKit/Pintura.h"
#include "ZorvePlatform/MacOS/Cadenas.h"

namespace Estilo = zorve::Estilo;
namespace Medidas = zorve::Medidas;

namespace {

constexpr CGFloat radio = 7;
constexpr CGFloat xDelTitulo = 34;

}  // namespace

@implementation FilaDeLaBarra {
  NSImageView* _simbolo;
  NSTextField* _rotulo;
  BOOL _elegida;
}

- (instancetype)initConSimbolo:(std::string_view)nombre {
  if ((self = [super initWithFrame:NSZeroRect])) {
    self.title = @"";
    self.bordered = NO;
    [self setButtonType:NSButtonTypeMomentaryChange];
    self.accessibilityRole = NSAccessibilityRadioButtonRole;
    _simbolo = zorve::simbolo(zorve::cadena(nombre), 13, Estilo::textoTenue);
    _rotulo = zorve::rotulo([NSFont systemFontOfSize:Medidas::letraDeOpcion], Estilo::texto);
    _rotulo.accessibilityElement = NO;
    zorve::colgar(_simbolo, self);
    zorve::colgar(_rotulo, self);
    [NSLayoutConstraint activateConstraints:@[
      [_simbolo.centerXAnchor constraintEqualToAnchor:self.leadingAnchor constant:18],
      [_simbolo.centerYAnchor constraintEqualToAnchor:self.centerYAnchor],
      [_rotulo.leadingAnchor constraintEqualToAnchor:self.leadingAnchor constant:xDelTitulo],
      [_rotulo.trailingAnchor constraintLessThanOrEqualToAnchor:self.trailingAnchor constant:-8],
      [_rotulo.centerYAnchor constraintEqualToAnchor:self.centerYAnchor],
    ]];
  }
  return self;
}

- (void)mostrar:(zorve::FilaDeSeccion const&)fila {
  _elegida = fila.elegida ? YES : NO;
  _rotulo.stringValue = zorve::cadena(fila.titulo);
  _simbolo.contentTintColor = zorve::colorLegible(fila.elegida ? Estilo::acento : Estilo::textoTenue);
  self.accessibilityLabel = _rotulo.stringValue;
  self.accessibilityValue = [NSNumber numberWithBool:_elegida];
  self.needsDisplay = YES;
}

- (void)drawRect:(NSRect)sucio {
  if (_elegida) zorve::tarjeta(self.bounds, radio, Estilo::filaSeleccionada, Estilo::contornoDeFila);
}

- (nullable NSView*)hitTest:(NSPoint)punto {
  return [super hitTest:punto] == nil ? nil : self;
}

- (void)drawFocusRingMask {
  [[NSBezierPath bezierPathWithRoundedRect:self.bounds xRadius:radio yRadius:radio] fill];
}

- (NSRect)focusRingMaskBounds {
  return self.bounds;
}

@end
