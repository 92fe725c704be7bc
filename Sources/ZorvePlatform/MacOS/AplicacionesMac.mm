#include "ZorvePlatform/MacOS/AplicacionesMac.h"

#import <AppKit/AppKit.h>

#include "ZorvePlatform/MacOS/Cadenas.h"

namespace zorve {

bool AplicacionesMac::hay(std::string const& identificador) const {
  @autoreleasepool {
    return [NSWorkspace.sharedWorkspace URLForApplicationWithBundleIdentifier:cadena(identificador)] != nil;
  }
}

}  // namespace zorve
