#include "ZorvePlatform/MacOS/PreferenciasMac.h"

#import <Foundation/Foundation.h>

#include "ZorvePlatform/MacOS/Cadenas.h"

namespace zorve {

namespace {

NSString* const dominio = @"com.sarnol.zorve";

/// The system refuses the running bundle's own identifier as a name.
NSUserDefaults* almacen() {
  static NSUserDefaults* const unico = [NSBundle.mainBundle.bundleIdentifier isEqualToString:dominio]
                                           ? NSUserDefaults.standardUserDefaults
                                           : [[NSUserDefaults alloc] initWithSuiteName:dominio];
  return unico;
}

NSObject* objetoDe(Preferencias::Valor const& valor) {
  if (auto const* texto = std::get_if<std::string>(&valor)) return cadena(*texto);
  return [NSNumber numberWithBool:std::get<bool>(valor) ? YES : NO];
}

}  // namespace

PreferenciasMac::~PreferenciasMac() {
  @autoreleasepool {
    [almacen() synchronize];
  }
}

std::expected<std::optional<Preferencias::Valor>, IndexError> PreferenciasMac::leer(
    std::string const& clave) const {
  @autoreleasepool {
    id const valor = [almacen() objectForKey:cadena(clave)];
    if ([valor isKindOfClass:NSString.class]) return Valor{textoDe(static_cast<NSString*>(valor))};
    if ([valor isKindOfClass:NSNumber.class]) return Valor{[almacen() boolForKey:cadena(clave)] == YES};
    return std::nullopt;
  }
}

std::expected<void, IndexError> PreferenciasMac::escribir(std::string const& clave, Valor const& valor) {
  @autoreleasepool {
    [almacen() setObject:objetoDe(valor) forKey:cadena(clave)];
  }
  return {};
}

std::expected<void, IndexError> PreferenciasMac::quitar(std::string const& clave) {
  @autoreleasepool {
    [almacen() removeObjectForKey:cadena(clave)];
  }
  return {};
}

}  // namespace zorve
