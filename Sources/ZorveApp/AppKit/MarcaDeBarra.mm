#import "ZorveApp/AppKit/MarcaDeBarra.h"

#include "ZorveApp/Marca.h"

#import "ZorveApp/AppKit/Pintura.h"

namespace zorve {

namespace {

NSRect rectanguloDe(Rectangulo const& marco) { return NSMakeRect(marco.x, marco.y, marco.ancho, marco.alto); }

NSPoint puntoDe(Punto const& punto) { return NSMakePoint(punto.x, punto.y); }

/// In the colour that is set, in coordinates whose y runs down.
void pintar(Marca const& marca) {
  [[NSBezierPath bezierPathWithOvalInRect:rectanguloDe(marca.elipse)] fill];
  NSBezierPath* const triangulo = [NSBezierPath bezierPath];
  [triangulo moveToPoint:puntoDe(marca.triangulo[0])];
  [triangulo lineToPoint:puntoDe(marca.triangulo[1])];
  [triangulo lineToPoint:puntoDe(marca.triangulo[2])];
  [triangulo closePath];
  [triangulo fill];
  for (auto const& uno : marca.rectangulos) {
    [[NSBezierPath bezierPathWithRoundedRect:rectanguloDe(uno.marco) xRadius:uno.radio
                                     yRadius:uno.radio] fill];
  }
}

NSBitmapImageRep* _Nullable lienzo(NSInteger pixeles) {
  return [[NSBitmapImageRep alloc] initWithBitmapDataPlanes:nullptr
                                                 pixelsWide:pixeles
                                                 pixelsHigh:pixeles
                                              bitsPerSample:8
                                            samplesPerPixel:4
                                                   hasAlpha:YES
                                                   isPlanar:NO
                                             colorSpaceName:NSDeviceRGBColorSpace
                                                bytesPerRow:0
                                               bitsPerPixel:0];
}

NSImage* _Nullable dibujada() {
  double const pixeles = MarcaDeBarra::lado * MarcaDeBarra::escala;
  NSBitmapImageRep* const mapa = lienzo(static_cast<NSInteger>(pixeles));
  NSGraphicsContext* const contexto =
      mapa == nil ? nil : [NSGraphicsContext graphicsContextWithBitmapImageRep:mapa];
  if (contexto == nil) return nil;
  [NSGraphicsContext saveGraphicsState];
  NSGraphicsContext.currentContext = contexto;
  NSAffineTransform* const haciaAbajo = [NSAffineTransform transform];
  [haciaAbajo translateXBy:0 yBy:pixeles];
  [haciaAbajo scaleXBy:1 yBy:-1];
  [haciaAbajo concat];
  [NSColor.blackColor setFill];
  pintar(Marca::en({0, 0, pixeles, pixeles}));
  [NSGraphicsContext restoreGraphicsState];
  mapa.size = NSMakeSize(MarcaDeBarra::lado, MarcaDeBarra::lado);
  NSImage* const imagen = [[NSImage alloc] initWithSize:mapa.size];
  [imagen addRepresentation:mapa];
  return imagen;
}

NSImage* hecha() {
  NSImage* imagen = dibujada();
  if (imagen == nil) imagen = [NSImage imageWithSystemSymbolName:@"bird" accessibilityDescription:@"Zorve"];
  if (imagen == nil) imagen = [[NSImage alloc] initWithSize:NSZeroSize];
  [imagen setTemplate:YES];
  return imagen;
}

}  // namespace

NSImage* MarcaDeBarra::imagen() {
  static NSImage* const unica = hecha();
  return unica;
}

}  // namespace zorve

@implementation VistaDeMarca

- (BOOL)isFlipped {
  return YES;
}

- (void)drawRect:(NSRect)sucio {
  NSRect const marco = self.bounds;
  [zorve::colorDe(zorve::Estilo::acento) setFill];
  zorve::pintar(zorve::Marca::en({0, 0, NSWidth(marco), NSHeight(marco)}));
}

@end
