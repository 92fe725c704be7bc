#include <algorithm>

#import "MacOS/Tramoya/Interior.h"

// The program as the system sees it, and the person in front of it.

NSApplication* NSApp = nil;

namespace {

struct Estado {
  bool terminada = false;
  bool escondida = false;
  bool activa = false;
  std::function<void()> alCorrer;
};

Estado& estado() {
  static Estado unico;
  return unico;
}

}  // namespace

@implementation NSApplication {
  NSEvent* _evento;
  __weak NSWindow* _conTeclado;
  NSMenu* _menu;
}
+ (NSApplication*)sharedApplication {
  static NSApplication* const unica = [[NSApplication alloc] init];
  NSApp = unica;
  return unica;
}
- (NSMenu*)mainMenu {
  return _menu;
}
- (void)setMainMenu:(NSMenu*)menu {
  _menu = menu;
}
- (NSEvent*)currentEvent {
  return _evento;
}
- (void)ponerEvento:(NSEvent*)evento {
  _evento = evento;
}
- (NSWindow*)keyWindow {
  return _conTeclado;
}
- (NSArray*)windows {
  return tramoya::ventanas();
}
- (void)ponerVentanaConTeclado:(NSWindow*)ventana {
  NSWindow* const antes = _conTeclado;
  if (antes == ventana) return;
  _conTeclado = ventana;
  [antes ponerConTeclado:NO];
  [ventana ponerConTeclado:YES];
}
- (void)activateIgnoringOtherApps:(BOOL)si {
  tramoya::anota("activate");
  estado().activa = true;
}
- (BOOL)isActive {
  return estado().activa;
}
- (BOOL)isHidden {
  return estado().escondida;
}
- (void)hide:(id)quien {
  tramoya::anota("hide");
  estado().escondida = true;
  estado().activa = false;
}
- (void)unhide:(id)quien {
  tramoya::anota("unhide");
  estado().escondida = false;
  estado().activa = true;
}
- (void)unhideWithoutActivation {
  tramoya::anota("unhide");
  estado().escondida = false;
}
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)como {
  tramoya::anota("activation policy " + std::to_string(como));
  return YES;
}
- (void)terminate:(id)quien {
  tramoya::anota("terminate");
  estado().terminada = true;
}
- (void)run {
  NSNotification* const nota = [NSNotification notificationWithName:@"" object:self];
  [self.delegate applicationDidFinishLaunching:nota];
  if (estado().alCorrer) estado().alCorrer();
}
/// The path of a key press: equivalents through the key window, then the menu; else to who has the keyboard.
- (void)sendEvent:(NSEvent*)evento {
  _evento = evento;
  NSWindow* const ventana = self.keyWindow;
  if ((evento.modifierFlags & NSEventModifierFlagCommand) != 0) {
    if ([ventana performKeyEquivalent:evento] || [_menu performKeyEquivalent:evento]) return;
  }
  [ventana.firstResponder keyDown:evento];
}
- (BOOL)sendAction:(SEL)accion to:(id)quien from:(id)de {
  if (quien != nil) return tramoya::manda(quien, accion, de);
  for (NSResponder* uno = self.keyWindow.firstResponder; uno != nil; uno = uno.nextResponder) {
    if (tramoya::manda(uno, accion, de)) return YES;
  }
  return tramoya::manda(self, accion, de);
}
@end

namespace tramoya {

std::vector<std::string>& diario() {
  static std::vector<std::string> lineas;
  return lineas;
}

void anota(std::string linea) { diario().push_back(std::move(linea)); }

std::size_t veces(std::string_view linea) {
  return static_cast<std::size_t>(
      std::ranges::count_if(diario(), [linea](auto const& una) { return una.starts_with(linea); }));
}

std::vector<std::string>& faltas() {
  static std::vector<std::string> unas;
  return unas;
}

bool esClase(id quien) { return class_isMetaClass(object_getClass(quien)); }

bool terminada() { return estado().terminada; }
bool escondida() { return estado().escondida; }
bool activa() { return estado().activa; }
void alCorrer(std::function<void()> que) { estado().alCorrer = std::move(que); }
NSWindow* ventanaConTeclado() { return NSApplication.sharedApplication.keyWindow; }

void abrirDeNuevo() {
  NSApplication* const app = NSApplication.sharedApplication;
  [app.delegate applicationShouldHandleReopen:app hasVisibleWindows:NO];
  girar();
}

void reponerAplicacion() {
  estado() = {};
  NSApplication* const app = NSApplication.sharedApplication;
  [app ponerEvento:nil];
  [app ponerVentanaConTeclado:nil];
  app.mainMenu = nil;
  app.delegate = nil;
}

void teclear(Golpe const& golpe) {
  @autoreleasepool {
    NSEvent* const evento = [NSEvent deTipo:NSEventTypeKeyDown modificadores:golpe.modificadores];
    [evento conTecla:golpe];
    [evento enVentana:ventanaConTeclado() lugar:NSEvent.mouseLocation];
    [NSApplication.sharedApplication sendEvent:evento];
    girar();
  }
}

void escribir(std::string_view letras) {
  for (char const letra : letras) teclear({std::string(1, letra)});
}

void componer(std::string_view letras) {
  NSResponder* const primero = ventanaConTeclado().firstResponder;
  if ([primero isKindOfClass:NSTextView.class])
    [static_cast<NSTextView*>(primero) componer:std::string{letras}];
  else
    faltas().push_back("nobody who has the keyboard takes an input method's text");
  girar();
}

void pulsar(NSView* vista) {
  @autoreleasepool {
    NSEvent* const evento = [NSEvent deTipo:NSEventTypeLeftMouseUp modificadores:0];
    [evento enVentana:vista.window lugar:NSMakePoint(5, 5)];
    [NSApplication.sharedApplication ponerEvento:evento];
    if ([vista hitTest:NSZeroPoint] != nil && [vista isKindOfClass:NSButton.class]) {
      [static_cast<NSButton*>(vista) performClick:nil];
    }
    girar();
  }
}

BOOL pulsarSinEvento(id vista) {
  @autoreleasepool {
    BOOL const hecho = [vista accessibilityPerformPress];
    girar();
    return hecho;
  }
}

void reponer() {
  @autoreleasepool {
    girar();
    reponerDespacho();
    reponerEventos();
    reponerBarra();
    reponerVentanas();
    reponerAplicacion();
    sistema() = {};
    diario().clear();
    faltas().clear();
  }
}

}  // namespace tramoya
