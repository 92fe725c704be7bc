#import "ZorveApp/AppKit/CampoDeBusqueda.h"

#import "ZorveApp/AppKit/Pintura.h"

namespace Estilo = zorve::Estilo;
namespace Medidas = zorve::Medidas;

/// A plain field whose caret has the accent colour.
@interface CampoLlano : NSTextField
@end

@implementation CampoLlano

- (BOOL)becomeFirstResponder {
  BOOL const bien = [super becomeFirstResponder];
  NSText* const editor = self.currentEditor;
  if ([editor isKindOfClass:NSTextView.class]) {
    static_cast<NSTextView*>(editor).insertionPointColor = zorve::colorDe(Estilo::acento);
  }
  return bien;
}

@end

@implementation CampoDeBusqueda

- (instancetype)initWithFrame:(NSRect)marco {
  if ((self = [super initWithFrame:marco])) {
    _campo = [[CampoLlano alloc] initWithFrame:NSZeroRect];
    _campo.bordered = NO;
    _campo.drawsBackground = NO;
    _campo.focusRingType = NSFocusRingTypeNone;
    _campo.usesSingleLineMode = YES;
    _campo.automaticTextCompletionEnabled = NO;
    _campo.lineBreakMode = NSLineBreakByTruncatingHead;
    _campo.font = [NSFont systemFontOfSize:Medidas::letraDeBusqueda];
    _campo.textColor = zorve::colorDe(Estilo::textoAlto);
    _campo.accessibilitySubrole = NSAccessibilitySearchFieldSubrole;
    [self colocar];
  }
  return self;
}

- (void)colocar {
  NSImageView* const lupa = zorve::simbolo(@"magnifyingglass", 14, Estilo::textoTenue);
  LineaFina* const linea = [[LineaFina alloc] initWithFrame:NSZeroRect];
  zorve::colgar(lupa, self);
  zorve::colgar(_campo, self);
  zorve::colgar(linea, self);
  [NSLayoutConstraint activateConstraints:@[
    [self.heightAnchor constraintEqualToConstant:Medidas::altoDeBusqueda],
    [lupa.leadingAnchor constraintEqualToAnchor:self.leadingAnchor constant:Medidas::xDeLupa],
    [lupa.centerYAnchor constraintEqualToAnchor:self.centerYAnchor],
    // The field draws its text two points inside its frame.
    [_campo.leadingAnchor constraintEqualToAnchor:self.leadingAnchor constant:Medidas::xDeBusqueda - 2],
    [_campo.trailingAnchor constraintEqualToAnchor:self.trailingAnchor constant:-Medidas::margenDerecho],
    [_campo.centerYAnchor constraintEqualToAnchor:self.centerYAnchor],
    [linea.leadingAnchor constraintEqualToAnchor:self.leadingAnchor],
    [linea.trailingAnchor constraintEqualToAnchor:self.trailingAnchor],
    [linea.bottomAnchor constraintEqualToAnchor:self.bottomAnchor],
  ]];
}

@end
