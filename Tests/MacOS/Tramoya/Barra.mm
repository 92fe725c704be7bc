#import "MacOS/Tramoya/Interior.h"

// The menu bar: the status item, its menus, the popover under it.

namespace {

__weak NSStatusItem* item;
__weak NSPopover* abierto;
std::function<void(NSMenu*)> alAbrirMenu;
std::vector<std::vector<std::string>> abiertos;

constexpr NSRect lugarDelItem{{1200, 900}, {24, 22}};

}  // namespace

@implementation NSStatusBarButton
@end

@implementation NSStatusItem {
  NSStatusBarButton* _boton;
  NSWindow* _ventana;
  NSMenu* _menu;
  NSEventMask _mascara;
}
- (instancetype)init {
  if ((self = [super init])) {
    _boton = [[NSStatusBarButton alloc] initWithFrame:NSMakeRect(0, 0, 24, 22)];
    _ventana = [[NSWindow alloc] initWithContentRect:lugarDelItem
                                           styleMask:0
                                             backing:NSBackingStoreBuffered
                                               defer:NO];
    _ventana.contentView = _boton;
  }
  return self;
}
- (NSStatusBarButton*)button {
  return tramoya::sistema().itemSinBoton ? nil : _boton;
}
- (NSMenu*)menu {
  return _menu;
}
- (void)setMenu:(NSMenu*)menu {
  tramoya::anota(menu == nil ? "item menu detached" : "item menu attached");
  _menu = menu;
}
/// A press ends over the item: the popover that hides by itself does so at the button's going down.
- (void)pulsar:(tramoya::Boton)boton modificadores:(NSUInteger)modificadores {
  bool const derecho = boton == tramoya::Boton::derecho;
  NSEventType const tipo = derecho ? NSEventTypeRightMouseUp : NSEventTypeLeftMouseUp;
  NSEvent* const evento = [NSEvent deTipo:tipo modificadores:modificadores];
  NSPoint const donde = NSMakePoint(lugarDelItem.origin.x + 5, lugarDelItem.origin.y + 5);
  if (derecho && tramoya::sistema().barraAjena) {
    [evento enVentana:nil lugar:donde];
    [NSEvent avisar:evento deOtros:YES];
    return;
  }
  [evento enVentana:_ventana lugar:donde];
  if (derecho && tramoya::sistema().porDosCaminos) [NSEvent avisar:evento deOtros:YES];
  [NSApplication.sharedApplication ponerEvento:evento];
  if (_menu != nil)
    [_boton performClick:nil];
  else if ((static_cast<NSEventMask>([[_boton valueForKey:@"mascara"] integerValue]) &
            (NSEventMask{1} << tipo)) != 0) {
    [_boton sendAction:_boton.action to:_boton.target];
  }
}
@end

@implementation NSStatusBarButton (Tramoya)
- (NSInteger)sendActionOn:(NSInteger)mascara {
  [self setValue:[NSNumber numberWithInteger:mascara] forKey:@"mascara"];
  return 0;
}
- (void)performClick:(id)quien {
  NSMenu* const menu = item.menu;
  if (menu == nil) {
    [self sendAction:self.action to:self.target];
    return;
  }
  tramoya::anota("status menu opens");
  tramoya::mostrarMenu(menu);
}
@end

@implementation NSStatusBar
+ (NSStatusBar*)systemStatusBar {
  static NSStatusBar* const unica = [[NSStatusBar alloc] init];
  return unica;
}
- (NSStatusItem*)statusItemWithLength:(CGFloat)largo {
  NSStatusItem* const nuevo = [[NSStatusItem alloc] init];
  item = nuevo;
  return nuevo;
}
@end

@implementation NSMenuItem {
  NSString* _titulo;
  SEL _orden;
  NSString* _tecla;
  __weak id _destino;
  NSMenu* _debajo;
  BOOL _raya;
}
+ (NSMenuItem*)separatorItem {
  NSMenuItem* const nuevo = [[self alloc] initWithTitle:@"" action:nullptr keyEquivalent:@""];
  nuevo->_raya = YES;
  return nuevo;
}
- (instancetype)initWithTitle:(NSString*)titulo action:(SEL)accion keyEquivalent:(NSString*)tecla {
  if ((self = [super init])) {
    _titulo = titulo;
    _orden = accion;
    _tecla = tecla;
  }
  return self;
}
- (NSString*)title {
  return _titulo;
}
- (BOOL)isSeparatorItem {
  return _raya;
}
- (NSString*)keyEquivalent {
  return _tecla;
}
- (void)setTarget:(id)destino {
  _destino = destino;
}
- (SEL)action {
  return _orden;
}
- (id)target {
  return _destino;
}
- (NSMenu*)submenu {
  return _debajo;
}
- (void)setSubmenu:(NSMenu*)menu {
  _debajo = menu;
}
/// A capital letter asks for Shift besides Command.
- (BOOL)performKeyEquivalent:(NSEvent*)evento {
  if (_debajo != nil) return [_debajo performKeyEquivalent:evento];
  auto const tecla = tramoya::utf8(_tecla);
  if (tecla.empty() || tecla != tramoya::utf8(evento.charactersIgnoringModifiers)) return NO;
  bool const mayuscula = tecla[0] >= 'A' && tecla[0] <= 'Z';
  NSUInteger const pide = NSEventModifierFlagCommand | (mayuscula ? NSEventModifierFlagShift : 0);
  if (evento.modifierFlags != pide) return NO;
  return [NSApplication.sharedApplication sendAction:_orden to:_destino from:self];
}
@end

@implementation NSMenu {
  NSMutableArray* _entradas;
  __weak id _delegado;
}
- (id)delegate {
  return _delegado;
}
- (void)setDelegate:(id)delegado {
  _delegado = delegado;
}
- (void)removeAllItems {
  [_entradas removeAllObjects];
}
/// Documented: a menu without entries does not come up.
- (BOOL)popUpMenuPositioningItem:(NSMenuItem*)entrada atLocation:(NSPoint)donde inView:(NSView*)vista {
  if (_delegado != nil) [_delegado menuNeedsUpdate:self];
  if (_entradas.count == 0) return NO;
  tramoya::mostrarMenu(self);
  return YES;
}
- (instancetype)init {
  if ((self = [super init])) _entradas = [NSMutableArray array];
  return self;
}
- (void)addItem:(NSMenuItem*)entrada {
  [_entradas addObject:entrada];
}
- (NSMenuItem*)addItemWithTitle:(NSString*)titulo action:(SEL)accion keyEquivalent:(NSString*)tecla {
  NSMenuItem* const nueva = [[NSMenuItem alloc] initWithTitle:titulo action:accion keyEquivalent:tecla];
  [self addItem:nueva];
  return nueva;
}
- (NSArray*)itemArray {
  return [_entradas copy];
}
- (BOOL)performKeyEquivalent:(NSEvent*)evento {
  for (NSMenuItem* uno in [_entradas copy]) {
    if ([uno performKeyEquivalent:evento]) return YES;
  }
  return NO;
}
@end

@implementation NSPopover {
  NSViewController* _contenido;
  NSWindow* _ventana;
  BOOL _muestra;
}
- (BOOL)isShown {
  return _muestra;
}
- (NSViewController*)contentViewController {
  return _contenido;
}
- (void)setContentViewController:(NSViewController*)contenido {
  _contenido = contenido;
}
- (void)showRelativeToRect:(NSRect)rect ofView:(NSView*)vista preferredEdge:(NSRectEdge)borde {
  if (vista.window == nil) tramoya::faltas().push_back("a popover is shown from a view that is in no window");
  if (_muestra) return;
  tramoya::anota("popover shows, edge " + std::to_string(static_cast<int>(borde)));
  [self hacerVentana];
  [_contenido viewWillAppear];
  _muestra = YES;
  abierto = self;
  [_ventana ponerVisible:YES];
  __weak NSPopover* const debil = self;
  tramoya::encola([debil] { [debil aparecio]; });
}
- (void)aparecio {
  if (_muestra) [_contenido viewDidAppear];
}
- (void)hacerVentana {
  if (_ventana != nil) return;
  NSRect const marco = NSMakeRect(1000, 300, self.contentSize.width, self.contentSize.height);
  _ventana = [[NSWindow alloc] initWithContentRect:marco styleMask:0 backing:NSBackingStoreBuffered defer:NO];
  _ventana.releasedWhenClosed = NO;
  NSView* const alrededor = [[NSView alloc] initWithFrame:NSMakeRect(0, 0, NSWidth(marco), NSHeight(marco))];
  _ventana.contentView = alrededor;
  NSView* const dentro = _contenido.view;
  [dentro ponerMarco:alrededor.bounds];
  [alrededor addSubview:dentro];
  [dentro.topAnchor constraintEqualToAnchor:alrededor.topAnchor].active = YES;
  [dentro.leadingAnchor constraintEqualToAnchor:alrededor.leadingAnchor].active = YES;
}
- (void)performClose:(id)quien {
  [self close];
}
- (void)close {
  if (!_muestra) return;
  tramoya::anota("popover closes");
  NSNotification* const nota = [NSNotification notificationWithName:@"NSPopoverWillClose" object:self];
  tramoya::manda(self.delegate, @selector(popoverWillClose:), nota);
  [_contenido viewWillDisappear];
  _muestra = NO;
  abierto = nil;
  [_ventana ponerVisible:NO];
  [_contenido viewDidDisappear];
}
/// Transient: closed by the system when the person does something elsewhere in this program.
- (void)pulsaronFuera {
  if (self.behavior == NSPopoverBehaviorTransient) [self close];
}
@end

namespace tramoya {

void mostrarMenu(NSMenu* menu) {
  std::vector<std::string> titulos;
  for (NSMenuItem* uno in menu.itemArray) titulos.push_back(tramoya::utf8(uno.title));
  abiertos.push_back(titulos);
  if (alAbrirMenu) alAbrirMenu(menu);
}

void pulsarItem(Boton boton, NSUInteger modificadores) {
  @autoreleasepool {
    avanzar(0.01);
    [item pulsar:boton modificadores:modificadores];
    girar();
  }
}

void pulsarFuera(Boton boton, NSPoint donde) {
  @autoreleasepool {
    avanzar(0.01);
    bool const derecho = boton == Boton::derecho;
    for (NSUInteger const tipo :
         {derecho ? NSUInteger{3} : NSUInteger{1}, derecho ? NSUInteger{4} : NSUInteger{2}}) {
      NSEvent* const evento = [NSEvent deTipo:tipo modificadores:0];
      [evento enVentana:nil lugar:donde];
      [NSEvent avisar:evento deOtros:YES];
    }
    girar();
  }
}

void conElMenu(std::function<void(NSMenu*)> con) { alAbrirMenu = std::move(con); }

void elegirDelMenu(NSMenu* menu, NSInteger cual) {
  NSMenuItem* const entrada = menu.itemArray[static_cast<NSUInteger>(cual)];
  [NSApplication.sharedApplication sendAction:entrada.action to:entrada.target from:entrada];
}

std::vector<std::vector<std::string>>& menusAbiertos() { return abiertos; }
NSStatusItem* itemDeEstado() { return item; }
NSPopover* popover() { return abierto; }

void reponerBarra() {
  alAbrirMenu = nullptr;
  abiertos.clear();
}

}  // namespace tramoya
