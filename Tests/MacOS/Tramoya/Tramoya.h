#pragma once

#import <AppKit/AppKit.h>
#import <ServiceManagement/ServiceManagement.h>

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

/// A toolkit that plays the system's, as far as its documentation says what matters to us, and writes down
/// the rest. It shows what our sources do with it; it shows nothing of the system. What the packaged headers
/// lack of what the tests ask for.
@interface NSTableView (Pruebas)
- (NSTableRowView*)rowViewAtRow:(NSInteger)fila makeIfNecessary:(BOOL)hacer;
/// A press on a row, in sight or not.
- (void)pulsarFila:(NSInteger)fila;
/// A secondary click there: the table's menu is filled by its delegate and comes up.
- (void)pulsarDerechoEnFila:(NSInteger)fila;
- (void)desplazarA:(NSInteger)fila;
- (NSInteger)primeraALaVista;
@end

@interface NSObject (PruebasDelDelegado)
- (BOOL)applicationSupportsSecureRestorableState:(NSApplication*)aplicacion;
@end

@interface NSEvent (Pruebas)
+ (NSEvent*)deTipo:(NSEventType)tipo modificadores:(NSUInteger)modificadores;
- (void)enVentana:(NSWindow*)ventana lugar:(NSPoint)lugar;
@end

@interface NSApplication (Pruebas)
- (void)ponerEvento:(NSEvent*)evento;
@end

@interface NSView (Pruebas)
- (BOOL)isHiddenOrHasHiddenAncestor;
- (BOOL)accessibilityPerformShowMenu;
- (NSSize)intrinsicContentSize;
@end

namespace tramoya {

/// What reached the toolkit, in order: "class message" and, where there is one, the value.
std::vector<std::string>& diario();
void anota(std::string linea);
/// How many lines are `linea` from its beginning on.
std::size_t veces(std::string_view linea);

/// What our sources did that the system answers with an exception or a broken window. A test that leaves one
/// fails.
std::vector<std::string>& faltas();

/// The attribute of the label's text at unit `donde`, or nil.
id atributo(NSTextField* rotulo, NSString* nombre, NSUInteger donde);

std::string utf8(id cadena);
NSString* texto(std::string_view utf8);
bool esClase(id quien);

/// The machine that the toolkit plays.
struct Sistema {
  bool masContraste = false;
  bool menosTransparencia = false;
  /// Newer systems have a glass view; older ones do not know its class.
  bool conVidrio = false;
  /// Newer systems do not hand right clicks to a status button.
  bool barraAjena = false;
  /// A right click reaches the status button and whoever listens to other programs' events.
  bool porDosCaminos = false;
  std::set<std::string> aplicaciones{"com.apple.Terminal"};
  std::map<std::string, std::string> manejadores{{"com.apple.terminal.shell-script", "com.apple.Terminal"}};
  std::set<std::string> tiposConocidos{"public.unix-executable", "com.apple.terminal.shell-script"};
  std::string home = "/Users/ana";
  std::string paquete = "com.sarnol.zorve";
  std::optional<std::string> version = "0.1.0";
  std::string region = "en_US";
  std::optional<std::string> falloDeInicio;
  bool inicioActivo = false;
  /// A status item that the system does not show has no button.
  bool itemSinBoton = false;
  bool sinMapaDeBits = false;
  bool sinSimbolos = false;
  /// Domain to key to value.
  std::map<std::string, std::map<std::string, id>> preferencias;
  std::vector<std::string> portapapeles;
};
Sistema& sistema();

/// Everything as at the start of a program on a new machine. No object of the program before is alive.
void reponer();

/// Runs what was handed to the main queue, and what that hands over, until nothing is left; then the views
/// that ask for it are laid out.
void girar();
/// Whether `listo` came true while the main queue ran, within ten seconds.
bool girarHasta(std::function<bool()> const& listo);
/// Moves the time of `dispatch_after_f` and of events on.
void avanzar(double segundos);
double ahora();

/// Told to the system as if the person had done it. Modifiers are NSEventModifierFlag….
struct Golpe {
  std::string caracter;
  NSUInteger modificadores = 0;
  bool repetida = false;
  /// What the key gives on a layout with Latin letters, where the person's has none.
  std::string latino{};
};
namespace golpe {
Golpe arriba(NSUInteger modificadores = 0);
Golpe abajo(NSUInteger modificadores = 0);
Golpe retorno(NSUInteger modificadores = 0);
Golpe intro();
Golpe escape(NSUInteger modificadores = 0);
Golpe mando(std::string caracter, NSUInteger de_mas = 0);
}  // namespace golpe
void teclear(Golpe const& golpe);
void escribir(std::string_view letras);
/// The input method writes `letras` into the field without their being the field's text yet.
void componer(std::string_view letras);

enum class Boton : std::uint8_t { izquierdo, derecho };
/// On the status item of the program.
void pulsarItem(Boton boton, NSUInteger modificadores = 0);
/// On a window of another program, or on the screen.
void pulsarFuera(Boton boton = Boton::izquierdo, NSPoint donde = {1, 1});
void pulsar(NSView* vista);
/// Assistive software's press: no event is behind it.
BOOL pulsarSinEvento(id vista);

/// The menu that is open, the status item's or another, while `con` runs.
void conElMenu(std::function<void(NSMenu*)> con);
void elegirDelMenu(NSMenu* menu, NSInteger cual);
/// Every menu that opened since `reponer`, by its entries' titles.
std::vector<std::vector<std::string>>& menusAbiertos();

NSStatusItem* itemDeEstado();
/// The one popover that shows, or nil.
NSPopover* popover();
NSWindow* ventanaConTeclado();
NSArray<NSWindow*>* ventanas();
bool terminada();
bool escondida();
bool activa();
void abrirDeNuevo();
/// What `run` does until the program ends.
void alCorrer(std::function<void()> que);

/// Below `raiz` and itself, in drawing order.
NSArray<NSView*>* vistas(NSView* raiz, Class clase);
NSView* vista(NSView* raiz, Class clase, NSUInteger cual = 0);
/// The visible texts of the labels below `raiz`.
std::vector<std::string> rotulos(NSView* raiz);
/// Has every visible view below `raiz` draw itself; gives what it drew with, one line an operation.
std::vector<std::string> dibujar(NSView* raiz);
/// Where the constraints put `vista` in its window's content; nothing where they do not say.
std::optional<NSRect> lugar(NSView* vista);

}  // namespace tramoya
