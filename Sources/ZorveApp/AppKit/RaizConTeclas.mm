#import "ZorveApp/AppKit/RaizConTeclas.h"

#import "ZorveApp/AppKit/Teclas.h"

@implementation RaizConTeclas

- (BOOL)probar:(nullable NSEvent*)evento {
  auto const alPulsar = self.alPulsar;
  if (evento == nil || evento.type != NSEventTypeKeyDown || alPulsar == nil) return NO;
  return alPulsar(zorve::pulsacionDe(static_cast<NSEvent* _Nonnull>(evento)));
}

- (BOOL)performKeyEquivalent:(NSEvent*)evento {
  bool const atajo = (evento.modifierFlags & NSEventModifierFlagCommand) != 0;
  return (atajo && [self probar:evento]) || [super performKeyEquivalent:evento];
}

- (void)keyDown:(NSEvent*)evento {
  if (![self probar:evento]) [super keyDown:evento];
}

@end
