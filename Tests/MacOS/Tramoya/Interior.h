#pragma once

// What the toolkit's parts say to each other.

#import "MacOS/Tramoya/Runtime.h"
#import "MacOS/Tramoya/Tramoya.h"

namespace tramoya {

/// Sends an action message; nothing happens without a receiver that answers to it.
bool manda(id quien, SEL orden, id con);
void encola(std::function<void()> tarea);
/// Of the layer's own state, what a new program does not have.
void reponerAplicacion();
void reponerDespacho();
void reponerVentanas();
void reponerBarra();
void reponerEventos();
/// Notes the menu and has the test choose in it.
void mostrarMenu(NSMenu* menu);
/// Lays out every table that shows and asks for it.
void acomodar();

}  // namespace tramoya

/// What the documentation gives to delegates and the packaged headers lack.
@interface NSObject (DelegadosDeApple)
- (NSView*)tableView:(NSTableView*)tabla viewForTableColumn:(NSTableColumn*)columna row:(NSInteger)fila;
- (NSTableRowView*)tableView:(NSTableView*)tabla rowViewForRow:(NSInteger)fila;
- (void)popoverWillClose:(NSNotification*)nota;
@end

@interface NSError (Tramoya)
+ (NSError*)conDescripcion:(NSString*)descripcion;
@end

@interface NSView (Tramoya)
- (void)mudarA:(NSWindow*)ventana;
- (void)ponerMarco:(NSRect)marco;
- (NSMutableArray<NSLayoutConstraint*>*)ataduras;
- (void)acomodar;
@end

@interface NSResponder (Tramoya)
- (void)pitar:(SEL)orden;
@end

@interface NSWindow (Tramoya)
- (NSTextView*)editorDe:(NSTextField*)campo;
- (void)soltarEditor;
- (void)ponerVisible:(BOOL)visible;
- (void)ponerConTeclado:(BOOL)con;
@end

@interface NSTextView (Tramoya)
@property(nonatomic, weak) NSTextField* campo;
- (void)empezarCon:(NSString*)texto;
- (NSString*)escrito;
- (void)componer:(std::string)letras;
- (BOOL)componiendo;
@end

@interface NSTextField (Tramoya)
- (void)cambioElEditor;
@end

@interface NSEvent (Tramoya)
- (void)conTecla:(tramoya::Golpe const&)golpe;
+ (BOOL)avisar:(NSEvent*)evento deOtros:(BOOL)deOtros;
@end

@interface NSStatusItem (Tramoya)
- (void)pulsar:(tramoya::Boton)boton modificadores:(NSUInteger)modificadores;
@end

@interface NSPopover (Tramoya)
- (void)pulsaronFuera;
@end

@interface NSApplication (Tramoya)
- (void)ponerVentanaConTeclado:(NSWindow*)ventana;
@end

@interface NSLayoutAnchor (Tramoya)
@property(nonatomic, weak) id vista;
@property(nonatomic) NSInteger cual;
@end
