#import <AppKit/AppKit.h>

#include <memory>

#import "ZorveApp/AppKit/Delegado.h"
#import "ZorveApp/AppKit/Programa.h"
#include "ZorvePlatform/MacOS/Cadenas.h"
#include "ZorvePlatform/MacOS/DirectorioHomeMac.h"

namespace {

std::optional<std::string> versionDelBundle() {
  id const version = NSBundle.mainBundle.infoDictionary[@"CFBundleShortVersionString"];
  if (![version isKindOfClass:NSString.class]) return std::nullopt;
  return zorve::textoDe(static_cast<NSString*>(version));
}

/// Left to the system at the program's end, on purpose.
zorve::Programa& programa() {
  auto const regla = zorve::reglaDe(zorve::textoDe(NSLocale.currentLocale.localeIdentifier));
  return *new zorve::Programa{zorve::directorioHomeMac(), regla, versionDelBundle()};
}

}  // namespace

int main() {
  @autoreleasepool {
    NSApplication* const aplicacion = NSApplication.sharedApplication;
    auto& todo = programa();
    static Delegado* delegado = nil;
    delegado = [[Delegado alloc] initCon:{.panel = todo.interfaz.panel,
                                          .ajustes = todo.interfaz.ajustes,
                                          .estado = todo.interfaz.estado,
                                          .idioma = todo.interfaz.idioma,
                                          .despachador = todo.despachador,
                                          .primerArranque = {todo.interfaz.banderas}}];
    aplicacion.delegate = delegado;
    [aplicacion setActivationPolicy:NSApplicationActivationPolicyAccessory];
    [aplicacion run];
  }
  return 0;
}
