#include <algorithm>

#import "MacOS/Tramoya/Interior.h"

// Responders and views.

CGFloat const NSViewNoIntrinsicMetric = -1;

@implementation NSResponder {
  __weak NSResponder* _siguiente;
}
- (NSResponder*)nextResponder {
  return _siguiente;
}
- (void)setNextResponder:(NSResponder*)siguiente {
  _siguiente = siguiente;
}
- (BOOL)acceptsFirstResponder {
  return NO;
}
- (BOOL)becomeFirstResponder {
  return YES;
}
- (BOOL)resignFirstResponder {
  return YES;
}
- (BOOL)performKeyEquivalent:(NSEvent*)evento {
  return NO;
}
- (void)pitar:(SEL)orden {
  tramoya::anota("beep");
}
- (void)keyDown:(NSEvent*)evento {
  NSResponder* const siguiente = self.nextResponder;
  if (siguiente == nil)
    [self pitar:_cmd];
  else
    [siguiente keyDown:evento];
}
@end

@implementation NSView {
  NSMutableArray<NSView*>* _hijas;
  NSMutableArray<NSLayoutConstraint*>* _ataduras;
  __weak NSView* _madre;
  __weak NSWindow* _ventana;
  NSRect _marco;
  BOOL _escondida;
}
- (instancetype)initWithFrame:(NSRect)marco {
  if ((self = [super init])) {
    _marco = marco;
    _hijas = [NSMutableArray array];
    _ataduras = [NSMutableArray array];
    self.translatesAutoresizingMaskIntoConstraints = YES;
    self.accessibilityElement = YES;
  }
  return self;
}
- (instancetype)init {
  return [self initWithFrame:NSZeroRect];
}
- (void)dealloc {
  for (NSView* hija in _hijas) [hija mudarA:nil];
}
- (NSRect)frame {
  return _marco;
}
- (void)setFrame:(NSRect)marco {
  _marco = marco;
}
- (void)ponerMarco:(NSRect)marco {
  _marco = marco;
}
- (NSRect)bounds {
  auto const lugar = tramoya::lugar(self);
  NSSize const lado = lugar ? lugar->size : _marco.size;
  return NSMakeRect(0, 0, lado.width, lado.height);
}
- (NSView*)superview {
  return _madre;
}
- (NSArray*)subviews {
  return [_hijas copy];
}
- (NSWindow*)window {
  return _ventana;
}
- (NSResponder*)nextResponder {
  NSResponder* const dado = [super nextResponder];
  return dado == nil ? _madre : dado;
}
- (void)mudarA:(NSWindow*)ventana {
  _ventana = ventana;
  for (NSView* hija in _hijas) [hija mudarA:ventana];
}
- (void)addSubview:(NSView*)hija {
  [hija removeFromSuperview];
  [_hijas addObject:hija];
  hija->_madre = self;
  [hija mudarA:_ventana];
}
- (void)removeFromSuperview {
  NSView* const madre = _madre;
  if (madre == nil) return;
  NSWindow* const ventana = _ventana;
  if (ventana != nil && ventana.firstResponder == self) [ventana makeFirstResponder:nil];
  _madre = nil;
  [self mudarA:nil];
  [madre->_hijas removeObject:self];
}
- (BOOL)isDescendantOf:(NSView*)otra {
  for (NSView* vista = self; vista != nil; vista = vista.superview) {
    if (vista == otra) return YES;
  }
  return NO;
}
- (BOOL)isHidden {
  return _escondida;
}
- (void)setHidden:(BOOL)escondida {
  _escondida = escondida;
}
- (BOOL)isHiddenOrHasHiddenAncestor {
  return _escondida || (_madre != nil && [_madre isHiddenOrHasHiddenAncestor]);
}
- (BOOL)isFlipped {
  return NO;
}
- (NSSize)intrinsicContentSize {
  return NSMakeSize(NSViewNoIntrinsicMetric, NSViewNoIntrinsicMetric);
}
- (NSView*)hitTest:(NSPoint)punto {
  return _escondida ? nil : self;
}
- (BOOL)performKeyEquivalent:(NSEvent*)evento {
  for (NSView* hija in [_hijas copy]) {
    if ([hija performKeyEquivalent:evento]) return YES;
  }
  return NO;
}
- (NSRect)convertRect:(NSRect)rect toView:(NSView*)vista {
  return rect;
}
- (CALayer*)layer {
  if (!self.wantsLayer) return nil;
  CALayer* capa = [self valueForKey:@"layer"];
  if (capa == nil) [self setValue:(capa = [[CALayer alloc] init]) forKey:@"layer"];
  return capa;
}
- (void)setNeedsDisplay:(BOOL)hace {
  if (hace) [self setValue:[NSNumber numberWithBool:YES] forKey:@"ensuciada"];
}
- (void)drawRect:(NSRect)sucio {
}
- (void)acomodar {
}
- (NSMutableArray<NSLayoutConstraint*>*)ataduras {
  return _ataduras;
}
@end

@implementation CALayer
@end

@implementation NSImageView
@end

@implementation NSVisualEffectView
@end

@implementation NSAppearance {
  NSString* _nombre;
}
+ (NSAppearance*)appearanceNamed:(NSString*)nombre {
  NSAppearance* const nueva = [[self alloc] init];
  nueva->_nombre = nombre;
  return nueva;
}
- (NSString*)name {
  return _nombre;
}
@end

@interface NSGlassEffectView : NSView
@end
@implementation NSGlassEffectView
@end

namespace tramoya {

NSArray<NSView*>* vistas(NSView* raiz, Class clase) {
  NSMutableArray<NSView*>* const salida = [NSMutableArray array];
  if ([raiz isKindOfClass:clase]) [salida addObject:raiz];
  for (NSView* hija in raiz.subviews) {
    for (NSView* una in vistas(hija, clase)) [salida addObject:una];
  }
  return salida;
}

NSView* vista(NSView* raiz, Class clase, NSUInteger cual) {
  NSArray<NSView*>* const todas = vistas(raiz, clase);
  return cual < todas.count ? todas[cual] : nil;
}

std::vector<std::string> rotulos(NSView* raiz) {
  std::vector<std::string> salida;
  for (NSView* campo in vistas(raiz, NSTextField.class)) {
    auto const escrito = utf8(static_cast<NSTextField*>(campo).stringValue);
    if (!escrito.empty() && ![campo isHiddenOrHasHiddenAncestor]) salida.push_back(escrito);
  }
  return salida;
}

}  // namespace tramoya
