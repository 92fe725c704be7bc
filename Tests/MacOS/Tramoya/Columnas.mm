#import "MacOS/Tramoya/Interior.h"

// Stacks of views.

@implementation NSStackView {
  NSMutableArray* _pila;
}
+ (instancetype)stackViewWithViews:(NSArray*)vistas {
  NSStackView* const nueva = [[self alloc] initWithFrame:NSZeroRect];
  for (NSView* vista in vistas) [nueva addArrangedSubview:vista];
  return nueva;
}
- (instancetype)initWithFrame:(NSRect)marco {
  if ((self = [super initWithFrame:marco])) _pila = [NSMutableArray array];
  return self;
}
- (NSArray*)views {
  return [_pila copy];
}
- (NSArray*)arrangedSubviews {
  return [_pila copy];
}
- (void)addArrangedSubview:(NSView*)vista {
  vista.translatesAutoresizingMaskIntoConstraints = NO;
  [_pila addObject:vista];
  [self addSubview:vista];
}
- (void)setViews:(NSArray*)vistas inGravity:(NSStackViewGravity)donde {
  tramoya::anota("stack takes " + std::to_string(vistas.count));
  for (NSView* vista in [_pila copy]) {
    if (![vistas containsObject:vista]) [vista removeFromSuperview];
  }
  [_pila removeAllObjects];
  for (NSView* vista in vistas) {
    vista.translatesAutoresizingMaskIntoConstraints = NO;
    [_pila addObject:vista];
    if (vista.superview != self) [self addSubview:vista];
  }
}
- (void)setCustomSpacing:(CGFloat)hueco afterView:(NSView*)vista {
  if (![_pila containsObject:vista])
    tramoya::faltas().push_back("a spacing after a view that is not in the stack");
}
- (NSSize)fittingSize {
  CGFloat altura = self.edgeInsets.top + self.edgeInsets.bottom;
  CGFloat ancho = 0;
  for (NSView* vista in _pila) {
    NSSize const suya = vista.fittingSize;
    altura += suya.height;
    ancho = suya.width > ancho ? suya.width : ancho;
  }
  if (_pila.count > 1) altura += self.spacing * static_cast<CGFloat>(_pila.count - 1);
  return NSMakeSize(ancho + self.edgeInsets.left + self.edgeInsets.right, altura);
}
@end
