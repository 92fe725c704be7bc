#include "ZorvePlatform/MacOS/PortapapelesMac.h"

#import <AppKit/AppKit.h>

#include "ZorvePlatform/MacOS/Cadenas.h"

namespace zorve {

void PortapapelesMac::copiar(std::string const& texto) {
  NSPasteboard* const general = NSPasteboard.generalPasteboard;
  [general clearContents];
  [general setString:cadena(texto) forType:NSPasteboardTypeString];
}

}  // namespace zorve
