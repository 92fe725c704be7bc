#include "ZorvePlatform/MacOS/PreferenciasMac.h"

#import <Foundation/Foundation.h>

#include "ZorvePlatform/MacOS/Cadenas.h"

namespace zorve {

namespace {

/// The system refuses the running bundle's own identifier as a name.
NSUserDefaults* almacen(std::string const& dominio) {
  NSString* const nombre = cadena(dominio);
  if ([NSBundle.mainBundle.bundleIdentifier isEqualToString:nombre])
    return NSUserDefaults.standardUserDefaults;
  return [[NSUserDefaults alloc] initWithSuiteName:nombre];
}

NSObject* objetoDe(Preferencias::Valor const& valor) {
  if (auto const* texto = std::get_if<std::string>(&valor)) return cadena(*texto);
  return [NSNumber numberWithBool:std::get<bool>(valor) ? YES : NO];
}

}  // namespace

std::expected<std::optional<Preferencias::Valor>, IndexError> PreferenciasMac::leer(
    std::string const& clave) const {
  @autoreleasepool {
    NSUserDefaults* const defaults = almacen(dominio_);
    id const valor = [defaults objectForKey:cadena(clave)];
    if ([valor isKindOfClass:NSString.class]) return Valor{textoDe(static_cast<NSString*>(valor))};
    if ([valor isKindOfClass:NSNumber.class]) return Valor{[defaults boolForKey:cadena(clave)] == YES};
    return std::nullopt;
  }
}

std::expected<void, IndexError> PreferenciasMac::escribir(std::string const& clave, Valor const& valor) {
  @autoreleasepool {
    [almacen(dominio_) setObject:objetoDe(valor) forKey:cadena(clave)];
  }
  return {};
}

std::expected<void, IndexError> PreferenciasMac::quitar(std::string const& clave) {
  @autoreleasepool {
    [almacen(dominio_) removeObjectForKey:cadena(clave)];
  }
  return {};
}

}  // namespace zorve
