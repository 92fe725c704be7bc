#import "ZorveApp/AppKit/RaizConTeclas.h"

#import "ZorveApp/AppKit/Teclas.h"

@implementation RaizConTeclas

- (BOOL)probar:(nullable NSEvent*)evento {
  if (evento == nil || evento.type != NSEventTypeKeyDown || self.alPulsar == nil) return NO;
  return self.alPulsar(zorve::pulsacionDe(evento));
}

- (BOOL)performKeyEquivalent:(NSEvent*)evento {
  bool const atajo = (evento.modifierFlags & NSEventModifierFlagCommand) != 0;
  return (atajo && [self probar:evento]) || [super performKeyEquivalent:evento];
}

- (void)keyDown:(NSEvent*)evento {
  if (![self probar:evento]) [super keyDown:evento];
}

@end
