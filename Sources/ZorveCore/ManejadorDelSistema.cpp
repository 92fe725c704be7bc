#include "ZorveCore/ManejadorDelSistema.h"

namespace zorve {

void ManejadorDelSistema::mirar() const {}

std::optional<std::string> ManejadorDelSistema::dichoPor(std::string_view /*tipo*/) const {
  return std::nullopt;
}

}  // namespace zorve
