#import "ZorveApp/AppKit/PuntoDeEstado.h"

#import "ZorveApp/AppKit/Pintura.h"

namespace Estilo = zorve::Estilo;

namespace {

constexpr CGFloat lado = 16;

NSBezierPath* circulo(CGFloat diametro) {
  CGFloat const borde = (lado - diametro) / 2;
  return [NSBezierPath bezierPathWithOvalInRect:NSMakeRect(borde, borde, diametro, diametro)];
}

void aro(zorve::Color const& color, CGFloat diametro, CGFloat grosor) {
  NSBezierPath* const forma = circulo(diametro - grosor);
  forma.lineWidth = grosor;
  [zorve::colorLegible(color) setStroke];
  [forma stroke];
}

void disco(zorve::Color const& color, CGFloat diametro) {
  [zorve::colorDe(color) setFill];
  [circulo(diametro) fill];
}

}  // namespace

@implementation PuntoDeEstado

- (void)setEstado:(zorve::LiveState)estado {
  if (_estado == estado) return;
  _estado = estado;
  self.needsDisplay = YES;
}

- (NSSize)intrinsicContentSize {
  return NSMakeSize(lado, lado);
}

- (void)drawRect:(NSRect)sucio {
  switch (self.estado) {
    case zorve::LiveState::busy:
      disco(Estilo::haloDeEstado, 14);
      disco(Estilo::ember, 8);
      break;
    case zorve::LiveState::idle:
      aro(Estilo::ember, 8, 2);
      break;
    case zorve::LiveState::dead:
      aro(Estilo::aroInactivo, 8, 1.5);
      break;
  }
}

@end
