#import "ZorveApp/AppKit/TarjetaDeAviso.h"

#import "ZorveApp/AppKit/Pintura.h"
#include "ZorvePlatform/MacOS/Cadenas.h"

namespace Estilo = zorve::Estilo;
namespace Medidas = zorve::Medidas;

namespace {

constexpr CGFloat punto = 6;
constexpr CGFloat xDelPunto = 13;
constexpr CGFloat xDelTexto = 36;
constexpr CGFloat margen = 9;

}  // namespace

@implementation TarjetaDeAviso {
  zorve::LineaDeBanda::Clase _clase;
}

- (instancetype)initConLinea:(zorve::LineaDeBanda const&)linea ancho:(CGFloat)ancho {
  if ((self = [super initWithFrame:NSZeroRect])) {
    _clase = linea.clase;
    NSTextField* const texto = [NSTextField wrappingLabelWithString:zorve::cadena(linea.texto)];
    texto.selectable = NO;
    texto.font = [NSFont systemFontOfSize:Medidas::letraDeBanda];
    texto.textColor = zorve::colorLegible(Estilo::texto);
    texto.preferredMaxLayoutWidth = ancho - xDelTexto - xDelPunto;
    zorve::colgar(texto, self);
    [NSLayoutConstraint activateConstraints:@[
      [self.widthAnchor constraintEqualToConstant:ancho],
      [texto.topAnchor constraintEqualToAnchor:self.topAnchor constant:margen],
      [texto.bottomAnchor constraintEqualToAnchor:self.bottomAnchor constant:-margen],
      [texto.leadingAnchor constraintEqualToAnchor:self.leadingAnchor constant:xDelTexto],
      [texto.trailingAnchor constraintEqualToAnchor:self.trailingAnchor constant:-xDelPunto],
    ]];
  }
  return self;
}

- (BOOL)isFlipped {
  return YES;
}

- (void)drawRect:(NSRect)sucio {
  bool const esError = _clase == zorve::LineaDeBanda::Clase::error;
  zorve::Color const tinta = esError ? Estilo::error : Estilo::acento;
  zorve::tarjeta(self.bounds, Medidas::radioDeBanda, esError ? Estilo::fondoDeError : Estilo::fondoDeAviso,
                 esError ? tinta.con(0.16) : zorve::Color::blanco(0.1));
  [zorve::colorDe(tinta) setFill];
  [[NSBezierPath bezierPathWithOvalInRect:NSMakeRect(xDelPunto, margen + 5, punto, punto)] fill];
}

@end
