#import <AppKit/AppKit.h>

#include "Contratos/PortapapelesContrato.h"
#include "ZorvePlatform/MacOS/Cadenas.h"
#include "ZorvePlatform/MacOS/PortapapelesMac.h"

namespace zorve::contratos {
namespace {

class General {
 public:
  Portapapeles& portapapeles() { return portapapeles_; }
  static std::optional<std::string> texto() {
    NSString* const pegado = [NSPasteboard.generalPasteboard stringForType:NSPasteboardTypeString];
    if (pegado == nil) return std::nullopt;
    return textoDe(pegado);
  }

 private:
  PortapapelesMac portapapeles_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Mac, PortapapelesContrato, ::testing::Types<General>);

}  // namespace
}  // namespace zorve::contratos
