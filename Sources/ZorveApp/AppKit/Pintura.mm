#import "ZorveApp/AppKit/Pintura.h"

namespace zorve {

NSColor* colorDe(Color const& color) {
  return [NSColor colorWithSRGBRed:color.rojo green:color.verde blue:color.azul alpha:color.opacidad];
}

NSColor* colorLegible(Color const& color) {
  NSColor* const normal = colorDe(color);
  NSColor* const claro = [normal blendedColorWithFraction:0.5 ofColor:colorDe(Color::blanco(1))];
  return [NSColor colorWithName:nil
                dynamicProvider:^NSColor*(NSAppearance*) {
                  return masContraste() && claro != nil ? claro : normal;
                }];
}

NSGradient* degradadoDe(Degradado const& degradado) {
  return [[NSGradient alloc] initWithStartingColor:colorDe(degradado.arriba)
                                       endingColor:colorDe(degradado.abajo)];
}

NSTextField* rotulo(NSFont* letra, Color const& color) {
  NSTextField* const campo = [NSTextField labelWithString:@""];
  campo.font = letra;
  campo.textColor = colorLegible(color);
  campo.usesSingleLineMode = YES;
  campo.lineBreakMode = NSLineBreakByTruncatingTail;
  return campo;
}

NSImageView* simbolo(NSString* nombre, CGFloat puntos, Color const& color) {
  NSImageView* const vista = [[NSImageView alloc] initWithFrame:NSZeroRect];
  vista.image = [NSImage imageWithSystemSymbolName:nombre accessibilityDescription:nil];
  vista.symbolConfiguration = [NSImageSymbolConfiguration configurationWithPointSize:puntos
                                                                              weight:NSFontWeightRegular];
  vista.contentTintColor = colorLegible(color);
  vista.accessibilityElement = NO;
  return vista;
}

void tarjeta(NSRect marco, CGFloat radio, Color const& fondo, Color const& contorno) {
  NSBezierPath* const forma = [NSBezierPath bezierPathWithRoundedRect:NSInsetRect(marco, 0.5, 0.5)
                                                              xRadius:radio
                                                              yRadius:radio];
  [colorDe(fondo) setFill];
  [forma fill];
  [colorLegible(contorno) setStroke];
  [forma stroke];
}

void colgar(NSView* dentro, NSView* fuera) {
  dentro.translatesAutoresizingMaskIntoConstraints = NO;
  [fuera addSubview:dentro];
}

void llenar(NSView* dentro, NSView* fuera) {
  colgar(dentro, fuera);
  [NSLayoutConstraint activateConstraints:@[
    [dentro.topAnchor constraintEqualToAnchor:fuera.topAnchor],
    [dentro.bottomAnchor constraintEqualToAnchor:fuera.bottomAnchor],
    [dentro.leadingAnchor constraintEqualToAnchor:fuera.leadingAnchor],
    [dentro.trailingAnchor constraintEqualToAnchor:fuera.trailingAnchor],
  ]];
}

void traerElPrograma() {
  NSApplication* const app = NSApplication.sharedApplication;
  if ([app isHidden]) [app unhideWithoutActivation];
  [app activateIgnoringOtherApps:YES];
}

BOOL masContraste() { return NSWorkspace.sharedWorkspace.accessibilityDisplayShouldIncreaseContrast; }

BOOL menosTransparencia() { return NSWorkspace.sharedWorkspace.accessibilityDisplayShouldReduceTransparency; }

}  // namespace zorve

@implementation LineaFina

- (NSSize)intrinsicContentSize {
  return NSMakeSize(NSViewNoIntrinsicMetric, 1);
}

- (void)drawRect:(NSRect)sucio {
  [zorve::colorLegible(zorve::Estilo::linea) setFill];
  NSRectFillUsingOperation(self.bounds, NSCompositingOperationSourceOver);
}

@end
