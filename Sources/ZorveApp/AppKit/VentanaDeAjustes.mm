#import "ZorveApp/AppKit/VentanaDeAjustes.h"

#import "ZorveApp/AppKit/Teclas.h"

@implementation VentanaDeAjustes {
  BOOL (^_tabla)(zorve::Pulsacion const&);
}

- (void)alPulsar:(BOOL (^)(zorve::Pulsacion const&))tabla {
  _tabla = [tabla copy];
}

- (BOOL)probar:(NSEvent*)evento {
  return evento.type == NSEventTypeKeyDown && _tabla != nil && _tabla(zorve::pulsacionDe(evento));
}

- (BOOL)performKeyEquivalent:(NSEvent*)evento {
  return [self probar:evento] || [super performKeyEquivalent:evento];
}

- (void)keyDown:(NSEvent*)evento {
  if (![self probar:evento]) [super keyDown:evento];
}

@end
