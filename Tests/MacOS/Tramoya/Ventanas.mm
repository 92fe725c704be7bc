#import "MacOS/Tramoya/Interior.h"

// Windows, and the controllers of what they show.

namespace {

/// Every window that is alive, in the order of their making.
NSMutableArray* todas() {
  static NSMutableArray* const unas = [NSMutableArray array];
  return unas;
}

}  // namespace

namespace tramoya {

bool manda(id quien, SEL orden, id con) {
  if (quien == nil || ![quien respondsToSelector:orden]) return false;
  reinterpret_cast<void (*)(id, SEL, id)>([quien methodForSelector:orden])(quien, orden, con);
  return true;
}

NSArray<NSWindow*>* ventanas() {
  NSMutableArray* const visibles = [NSMutableArray array];
  for (NSWindow* ventana in todas()) {
    if ([ventana isVisible]) [visibles addObject:ventana];
  }
  return visibles;
}

void acomodar() {
  for (NSWindow* ventana in ventanas()) {
    for (NSView* tabla in vistas(ventana.contentView, NSTableView.class)) [tabla acomodar];
  }
}

void reponerVentanas() { [todas() removeAllObjects]; }

}  // namespace tramoya

@implementation NSWindow {
  NSView* _contenido;
  NSTextView* _editor;
  __weak NSResponder* _primero;
  NSRect _lugar;
  BOOL _visible;
  BOOL _conTeclado;
}
- (instancetype)initWithContentRect:(NSRect)rect
                          styleMask:(NSUInteger)estilo
                            backing:(NSBackingStoreType)respaldo
                              defer:(BOOL)luego {
  if ((self = [super init])) {
    _lugar = rect;
    tramoya::anota("window " + std::to_string(estilo));
    self.releasedWhenClosed = YES;
  }
  return self;
}
- (NSUInteger)styleMask {
  return 0;
}
- (NSRect)frame {
  return _lugar;
}
- (NSView*)contentView {
  return _contenido;
}
- (void)setContentView:(NSView*)vista {
  [_contenido mudarA:nil];
  _contenido = vista;
  [vista ponerMarco:NSMakeRect(0, 0, NSWidth(_lugar), NSHeight(_lugar))];
  [vista setNextResponder:self];
  [vista mudarA:self];
}
- (NSRect)convertRectToScreen:(NSRect)rect {
  rect.origin.x += _lugar.origin.x;
  rect.origin.y += _lugar.origin.y;
  return rect;
}
- (BOOL)isVisible {
  return _visible;
}
- (void)ponerVisible:(BOOL)visible {
  _visible = visible;
  if (visible && ![todas() containsObject:self]) [todas() addObject:self];
  if (visible) return;
  [todas() removeObject:self];
  if (_conTeclado) [NSApplication.sharedApplication ponerVentanaConTeclado:nil];
}
- (BOOL)isKeyWindow {
  return _conTeclado;
}
- (void)ponerConTeclado:(BOOL)con {
  if (_conTeclado == con) return;
  _conTeclado = con;
  NSNotification* const nota = [NSNotification notificationWithName:@"" object:self];
  tramoya::manda(self.delegate, con ? @selector(windowDidBecomeKey:) : @selector(windowDidResignKey:), nota);
}
- (void)makeKeyWindow {
  [NSApplication.sharedApplication ponerVentanaConTeclado:self];
}
- (void)makeKeyAndOrderFront:(id)quien {
  tramoya::anota("window to the front");
  [self ponerVisible:YES];
  [self makeKeyWindow];
}
- (void)orderOut:(id)quien {
  [self ponerVisible:NO];
}
- (void)close {
  if (!_visible) return;
  tramoya::anota("window closes");
  if ([self isReleasedWhenClosed])
    tramoya::faltas().push_back("a window that is kept is released when it closes");
  NSNotification* const nota = [NSNotification notificationWithName:@"" object:self];
  tramoya::manda(self.delegate, @selector(windowWillClose:), nota);
  [self ponerVisible:NO];
}
- (void)center {
  tramoya::anota("window centred");
}
- (NSResponder*)firstResponder {
  return _primero == nil ? self : _primero;
}
- (BOOL)makeFirstResponder:(NSResponder*)quien {
  if (quien != nil && quien == _primero) return YES;
  [self soltarEditor];
  _primero = nil;
  if (quien == nil) return YES;
  if (![quien acceptsFirstResponder]) return NO;
  _primero = quien;
  return [quien becomeFirstResponder];
}
- (NSTextView*)editorDe:(NSTextField*)campo {
  if (_editor == nil) _editor = [[NSTextView alloc] initWithFrame:NSZeroRect];
  _editor.campo = campo;
  [_editor setNextResponder:campo];
  [_editor mudarA:self];
  _primero = _editor;
  return _editor;
}
- (void)soltarEditor {
  NSTextField* const campo = _editor.campo;
  if (campo == nil) return;
  NSString* const escrito = [_editor escrito];
  _editor.campo = nil;
  campo.stringValue = escrito;
}
- (BOOL)performKeyEquivalent:(NSEvent*)evento {
  return [_contenido performKeyEquivalent:evento];
}
@end

@implementation NSViewController {
  NSView* _suya;
}
- (instancetype)initWithNibName:(NSString*)nombre bundle:(NSBundle*)paquete {
  return [super init];
}
- (NSView*)view {
  if (_suya == nil) {
    [self loadView];
    [self viewDidLoad];
  }
  return _suya;
}
- (void)setView:(NSView*)vista {
  _suya = vista;
  [vista setNextResponder:self];
}
- (NSView*)loadedView {
  return _suya;
}
- (void)viewDidLoad {
}
- (void)viewWillAppear {
}
- (void)viewDidAppear {
}
- (void)viewWillDisappear {
}
- (void)viewDidDisappear {
}
@end
