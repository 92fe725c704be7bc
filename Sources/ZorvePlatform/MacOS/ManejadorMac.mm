#include "ZorvePlatform/MacOS/ManejadorMac.h"

#import <AppKit/AppKit.h>
#import <UniformTypeIdentifiers/UniformTypeIdentifiers.h>

#include "ZorvePlatform/MacOS/Cadenas.h"

namespace zorve {

RespuestaDelSistema ManejadorMac::preguntar(std::string_view tipo) const {
  @autoreleasepool {
    UTType* const conocido = [UTType typeWithIdentifier:cadena(tipo)];
    if (conocido == nil) return {};
    NSURL* const aplicacion = [NSWorkspace.sharedWorkspace URLForApplicationToOpenContentType:conocido];
    if (aplicacion == nil) return {};
    NSString* const identificador = [[NSBundle alloc] initWithURL:aplicacion].bundleIdentifier;
    if (identificador == nil) return {};
    return {.aplicacion = textoDe(identificador)};
  }
}

}  // namespace zorve
