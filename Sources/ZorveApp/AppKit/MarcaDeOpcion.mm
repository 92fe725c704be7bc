#import "ZorveApp/AppKit/MarcaDeOpcion.h"

#import "ZorveApp/AppKit/Pintura.h"

namespace Estilo = zorve::Estilo;
namespace Medidas = zorve::Medidas;

namespace {

constexpr CGFloat grosor = 1.5;

NSBezierPath* palomita(NSRect marco) {
  CGFloat const lado = NSWidth(marco);
  NSBezierPath* const trazo = [NSBezierPath bezierPath];
  [trazo moveToPoint:NSMakePoint(lado * 0.28, lado * 0.52)];
  [trazo lineToPoint:NSMakePoint(lado * 0.44, lado * 0.34)];
  [trazo lineToPoint:NSMakePoint(lado * 0.73, lado * 0.68)];
  trazo.lineWidth = 1.8;
  trazo.lineCapStyle = NSLineCapStyleRound;
  trazo.lineJoinStyle = NSLineJoinStyleRound;
  return trazo;
}

}  // namespace

@implementation MarcaDeOpcion

- (void)setCuadro:(BOOL)cuadro {
  _cuadro = cuadro;
  self.needsDisplay = YES;
}

- (void)setMarcada:(BOOL)marcada {
  _marcada = marcada;
  self.needsDisplay = YES;
}

- (NSSize)intrinsicContentSize {
  return NSMakeSize(Medidas::ladoDeMarca, Medidas::ladoDeMarca);
}

- (void)drawRect:(NSRect)sucio {
  NSRect const marco = NSInsetRect(self.bounds, grosor / 2, grosor / 2);
  CGFloat const radio = self.cuadro ? 4 : NSWidth(marco) / 2;
  NSBezierPath* const contorno = [NSBezierPath bezierPathWithRoundedRect:marco xRadius:radio yRadius:radio];
  contorno.lineWidth = grosor;
  NSColor* const color = zorve::colorLegible(self.marcada ? Estilo::acento : Estilo::textoDebil);
  [color set];
  [contorno stroke];
  if (!self.marcada) return;
  if (self.cuadro) {
    [palomita(self.bounds) stroke];
  } else {
    [[NSBezierPath bezierPathWithOvalInRect:NSInsetRect(self.bounds, 4, 4)] fill];
  }
}

@end
