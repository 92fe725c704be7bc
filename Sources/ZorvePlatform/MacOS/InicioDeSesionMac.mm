#include "ZorvePlatform/MacOS/InicioDeSesionMac.h"

#import <ServiceManagement/ServiceManagement.h>

#include "ZorvePlatform/MacOS/Cadenas.h"

namespace zorve {

namespace {

std::expected<void, std::string> resultadoDe(BOOL bien, NSError* fallo) {
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
  return resultadoDe(bien, fallo);
}

std::expected<void, std::string> InicioDeSesionMac::retirar() {
  NSError* fallo = nil;
  BOOL const bien = [SMAppService.mainAppService unregisterAndReturnError:&fallo];
  return resultadoDe(bien, fallo);
}

}  // namespace zorve
