#import "MacOS/Tramoya/Interior.h"

// Controls: buttons, labels, the text field and the field editor that writes for it.

NSString* NSFontAttributeName = @"NSFont";
NSString* NSForegroundColorAttributeName = @"NSColor";
NSString* NSKernAttributeName = @"NSKern";
NSString* NSParagraphStyleAttributeName = @"NSParagraphStyle";

@implementation NSControl
- (BOOL)sendAction:(SEL)accion to:(id)quien {
  return tramoya::manda(quien, accion, self);
}
- (BOOL)isEnabled {
  return YES;
}
@end

@implementation NSButton
- (void)performClick:(id)quien {
  [self sendAction:self.action to:self.target];
}
- (BOOL)acceptsFirstResponder {
  return YES;
}
- (BOOL)accessibilityPerformPress {
  [self performClick:nil];
  return YES;
}
- (void)keyDown:(NSEvent*)evento {
  if ([evento.charactersIgnoringModifiers isEqualToString:@" "])
    [self performClick:nil];
  else
    [super keyDown:evento];
}
@end

@implementation NSTextField {
  NSString* _valor;
  NSAttributedString* _conAspecto;
  BOOL _deEscribir;
}
+ (instancetype)labelWithString:(NSString*)valor {
  NSTextField* const nuevo = [[self alloc] initWithFrame:NSZeroRect];
  nuevo->_valor = valor;
  nuevo->_deEscribir = NO;
  return nuevo;
}
+ (instancetype)wrappingLabelWithString:(NSString*)valor {
  return [self labelWithString:valor];
}
- (instancetype)initWithFrame:(NSRect)marco {
  if ((self = [super initWithFrame:marco])) {
    _valor = @"";
    _deEscribir = YES;
    self.automaticTextCompletionEnabled = YES;
  }
  return self;
}
- (BOOL)acceptsFirstResponder {
  return _deEscribir;
}
- (BOOL)becomeFirstResponder {
  [[self.window editorDe:self] empezarCon:_valor];
  return YES;
}
- (NSText*)currentEditor {
  NSResponder* const primero = self.window.firstResponder;
  if (![primero isKindOfClass:NSTextView.class]) return nil;
  return static_cast<NSTextView*>(primero).campo == self ? static_cast<NSText*>(primero) : nil;
}
- (NSString*)stringValue {
  NSText* const editor = self.currentEditor;
  return editor == nil ? _valor : [static_cast<NSTextView*>(editor) escrito];
}
/// While it is edited the editor's text is replaced, and what an input method was composing is lost.
- (void)setStringValue:(NSString*)valor {
  if (valor == nil) tramoya::faltas().push_back("a text field is given no text");
  _valor = [valor copy];
  _conAspecto = nil;
  NSText* const editor = self.currentEditor;
  if (editor != nil) [static_cast<NSTextView*>(editor) empezarCon:valor];
}
- (NSAttributedString*)attributedStringValue {
  return _conAspecto;
}
- (void)setAttributedStringValue:(NSAttributedString*)valor {
  self.stringValue = valor.string;
  _conAspecto = valor;
}
- (void)cambioElEditor {
  NSNotification* const nota = [NSNotification notificationWithName:@"" object:self];
  tramoya::manda(self.delegate, @selector(controlTextDidChange:), nota);
}
/// Sixteen points a line, so many characters a line as fit at six points each.
- (NSSize)fittingSize {
  CGFloat const ancho = self.preferredMaxLayoutWidth;
  auto const letras = static_cast<CGFloat>(_valor.length);
  CGFloat const lineas = ancho <= 0 ? 1 : static_cast<CGFloat>(static_cast<int>(letras * 6 / ancho) + 1);
  return NSMakeSize(ancho, 16 * lineas);
}
@end

@implementation NSText
@end

@implementation NSTextView {
  __weak NSTextField* _campo;
  std::string _escrito;
  std::string _marcado;
  bool _todo;
}
- (NSTextField*)campo {
  return _campo;
}
- (void)setCampo:(NSTextField*)campo {
  _campo = campo;
}
- (BOOL)acceptsFirstResponder {
  return YES;
}
- (void)empezarCon:(NSString*)texto {
  _escrito = tramoya::utf8(texto);
  _marcado.clear();
  _todo = true;
}
- (NSString*)escrito {
  return tramoya::texto(_escrito + _marcado);
}
- (NSString*)string {
  return [self escrito];
}
- (void)componer:(std::string)letras {
  if (_todo) _escrito.clear();
  _todo = false;
  _marcado = std::move(letras);
  [_campo cambioElEditor];
}
- (BOOL)componiendo {
  return !_marcado.empty();
}
- (BOOL)hasMarkedText {
  return [self componiendo];
}
- (void)insertText:(id)letras {
  if (_todo) _escrito.clear();
  _todo = false;
  _marcado.clear();
  _escrito += tramoya::utf8(letras);
  [_campo cambioElEditor];
}
- (void)selectAll:(id)quien {
  _todo = true;
}
- (void)copy:(id)quien {
  if (!_todo || _escrito.empty()) return;
  [NSPasteboard.generalPasteboard clearContents];
  [NSPasteboard.generalPasteboard setString:tramoya::texto(_escrito) forType:NSPasteboardTypeString];
}
- (void)cut:(id)quien {
  if (!_todo || _escrito.empty()) return;
  [self copy:quien];
  _escrito.clear();
  [_campo cambioElEditor];
}
- (void)paste:(id)quien {
  NSString* const pegado = [NSPasteboard.generalPasteboard stringForType:NSPasteboardTypeString];
  if (pegado != nil) [self insertText:pegado];
}
/// The delegate is asked first; what it leaves, the editor does or beeps at.
- (void)doCommandBySelector:(SEL)orden {
  NSTextField* const campo = _campo;
  id const delegado = campo.delegate;
  if ([delegado respondsToSelector:@selector(control:textView:doCommandBySelector:)] &&
      [delegado control:campo textView:self doCommandBySelector:orden]) {
    return;
  }
  tramoya::anota(std::string{"editor does "} + sel_getName(orden));
}
- (void)keyDown:(NSEvent*)evento {
  auto const letra = tramoya::utf8(evento.charactersIgnoringModifiers);
  NSUInteger const banderas = evento.modifierFlags;
  if ([self componiendo]) {
    if (letra == "\r") [self insertText:tramoya::texto(std::string{_marcado})];
    if (letra == "\x1B") [self componer:""];
    return;
  }
  SEL const orden = [self ordenDe:letra banderas:banderas];
  if (orden != nullptr)
    [self doCommandBySelector:orden];
  else if ((banderas & NSEventModifierFlagCommand) != 0)
    [self doCommandBySelector:sel_registerName("noop:")];
  else
    [self insertText:tramoya::texto(letra)];
}
/// The system's own table of keys.
- (SEL)ordenDe:(std::string const&)letra banderas:(NSUInteger)banderas {
  bool const conControl = (banderas & NSEventModifierFlagControl) != 0;
  bool const conMayusculas = (banderas & NSEventModifierFlagShift) != 0;
  if (letra == "\xEF\x9C\x80")
    return sel_registerName(conMayusculas ? "moveUpAndModifySelection:" : "moveUp:");
  if (letra == "\xEF\x9C\x81")
    return sel_registerName(conMayusculas ? "moveDownAndModifySelection:" : "moveDown:");
  if (letra == "\r" || letra == "\x03") return sel_registerName("insertNewline:");
  if (letra == "\x1B") return sel_registerName("cancelOperation:");
  if (conControl && letra == "p") return sel_registerName("moveUp:");
  if (conControl && letra == "n") return sel_registerName("moveDown:");
  return conControl ? sel_registerName("noop:") : nullptr;
}
@end
