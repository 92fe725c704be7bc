#import "MacOS/Tramoya/Interior.h"

// Events, and who listens to them besides their receivers.

namespace {

NSMutableArray* oyentes() {
  static NSMutableArray* const unos = [NSMutableArray array];
  return unos;
}

NSPoint raton{};

}  // namespace

@interface OyenteDeEventos : NSObject
@property(nonatomic) NSEventMask mascara;
@property(nonatomic, copy) void (^que)(NSEvent*);
@property(nonatomic) BOOL deOtros;
@end
@implementation OyenteDeEventos
@end

@implementation NSEvent {
  NSEventType _tipo;
  NSUInteger _banderas;
  NSString* _caracteres;
  NSString* _latinos;
  BOOL _repetida;
  double _cuando;
  __weak NSWindow* _ventana;
  NSPoint _lugar;
}
+ (NSEvent*)deTipo:(NSEventType)tipo modificadores:(NSUInteger)banderas {
  NSEvent* const nuevo = [[self alloc] init];
  nuevo->_tipo = tipo;
  nuevo->_banderas = banderas;
  nuevo->_cuando = tramoya::ahora();
  return nuevo;
}
- (void)conTecla:(tramoya::Golpe const&)golpe {
  _caracteres = tramoya::texto(golpe.caracter);
  _latinos = golpe.latino.empty() ? _caracteres : tramoya::texto(golpe.latino);
  _repetida = golpe.repetida;
}
- (void)enVentana:(NSWindow*)ventana lugar:(NSPoint)lugar {
  _ventana = ventana;
  _lugar = lugar;
  raton = lugar;
}
- (NSEventType)type {
  return _tipo;
}
- (NSEventModifierFlags)modifierFlags {
  return _banderas;
}
/// Only key presses have characters; for others the system raises an exception.
- (NSString*)charactersIgnoringModifiers {
  if (_caracteres == nil)
    tramoya::faltas().push_back("an event that is no key press is asked for its characters");
  return _caracteres;
}
- (NSString*)charactersByApplyingModifiers:(NSEventModifierFlags)banderas {
  return (banderas & NSEventModifierFlagCommand) != 0 ? _latinos : _caracteres;
}
- (BOOL)isARepeat {
  return _repetida;
}
- (NSTimeInterval)timestamp {
  return _cuando;
}
- (NSWindow*)window {
  return _ventana;
}
+ (NSPoint)mouseLocation {
  return raton;
}
+ (id)addGlobalMonitorForEventsMatchingMask:(NSEventMask)mascara handler:(void (^)(NSEvent*))que {
  OyenteDeEventos* const nuevo = [[OyenteDeEventos alloc] init];
  nuevo.mascara = mascara;
  nuevo.que = que;
  nuevo.deOtros = YES;
  [oyentes() addObject:nuevo];
  tramoya::anota("global monitor added");
  return nuevo;
}
+ (void)removeMonitor:(id)oyente {
  if (![oyentes() containsObject:oyente])
    tramoya::faltas().push_back("a monitor is removed that was not added");
  [oyentes() removeObject:oyente];
  tramoya::anota("global monitor removed");
}
/// Global monitors hear of what goes to other programs alone.
+ (BOOL)avisar:(NSEvent*)evento deOtros:(BOOL)deOtros {
  for (OyenteDeEventos* uno in [oyentes() copy]) {
    bool const suyo = (uno.mascara & (NSEventMask{1} << evento.type)) != 0;
    if (suyo && uno.deOtros == deOtros) uno.que(evento);
  }
  return YES;
}
@end

double CACurrentMediaTime(void) { return tramoya::ahora(); }

namespace tramoya {

void reponerEventos() {
  [oyentes() removeAllObjects];
  raton = {};
}

namespace golpe {

Golpe arriba(NSUInteger modificadores) {
  return {"\xEF\x9C\x80", modificadores | NSEventModifierFlagFunction | NSEventModifierFlagNumericPad};
}
Golpe abajo(NSUInteger modificadores) {
  return {"\xEF\x9C\x81", modificadores | NSEventModifierFlagFunction | NSEventModifierFlagNumericPad};
}
Golpe retorno(NSUInteger modificadores) { return {"\r", modificadores}; }
Golpe intro() { return {"\x03", NSEventModifierFlagNumericPad}; }
Golpe escape(NSUInteger modificadores) { return {"\x1B", modificadores}; }
Golpe mando(std::string caracter, NSUInteger de_mas) {
  return {std::move(caracter), NSEventModifierFlagCommand | de_mas};
}

}  // namespace golpe

}  // namespace tramoya
