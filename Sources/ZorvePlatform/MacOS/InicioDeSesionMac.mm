#include "ZorvePlatform/MacOS/InicioDeSesionMac.h"

#import <ServiceManagement/ServiceManagement.h>

#include "ZorvePlatform/MacOS/Cadenas.h"

namespace zorve {

namespace {

std::expected<void, std::string> segun(BOOL bien, NSError* fallo) {
  if (bien) return {};
  return std::unexpected{textoDe(fallo.localizedDescription)};
}

}  // namespace

bool InicioDeSesionMac::activo() const {
  return SMAppService.mainAppService.status == SMAppServiceStatusEnabled;
}

std::expected<void, std::string> InicioDeSesionMac::registrar() {
  NSError* fallo = nil;
  BOOL const bien = [SMAppService.mainAppService registerAndReturnError:&fallo];
  return segun(bien, fallo);
}

std::expected<void, std::string> InicioDeSesionMac::retirar() {
  NSError* fallo = nil;
  BOOL const bien = [SMAppService.mainAppService unregisterAndReturnError:&fallo];
  return segun(bien, fallo);
}

}  // namespace zorve
