#include "ZorvePlatform/MacOS/ManejadorMac.h"

#import <AppKit/AppKit.h>
#import <UniformTypeIdentifiers/UniformTypeIdentifiers.h>

#include "ZorvePlatform/MacOS/Cadenas.h"

namespace zorve {

std::optional<std::string> ManejadorMac::aplicacionPara(std::string_view tipo) const {
  @autoreleasepool {
    UTType* const conocido = [UTType typeWithIdentifier:cadena(tipo)];
    if (conocido == nil) return std::nullopt;
    NSURL* const aplicacion = [NSWorkspace.sharedWorkspace URLForApplicationToOpenContentType:conocido];
    if (aplicacion == nil) return std::nullopt;
    NSString* const identificador = [[NSBundle alloc] initWithURL:aplicacion].bundleIdentifier;
    if (identificador == nil) return std::nullopt;
    return textoDe(identificador);
  }
}

}  // namespace zorve
