#include "ZorvePlatform/MacOS/ManejadorMac.h"

#import <AppKit/AppKit.h>
#import <UniformTypeIdentifiers/UniformTypeIdentifiers.h>

#include "ZorveCore/CatalogoDeTerminales.h"
#include "ZorvePlatform/MacOS/Cadenas.h"

namespace zorve {

std::optional<std::string> manejadorRegistrado() {
  @autoreleasepool {
    UTType* const tipo = [UTType typeWithIdentifier:cadena(CatalogoDeTerminales::tipoDeGuionDeShell)];
    if (tipo == nil) return std::nullopt;
    NSURL* const aplicacion = [NSWorkspace.sharedWorkspace URLForApplicationToOpenContentType:tipo];
    if (aplicacion == nil) return std::nullopt;
    NSString* const identificador = [[NSBundle alloc] initWithURL:aplicacion].bundleIdentifier;
    if (identificador == nil) return std::nullopt;
    return textoDe(identificador);
  }
}

}  // namespace zorve
