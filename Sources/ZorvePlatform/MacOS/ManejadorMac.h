#pragma once

#include "ZorveCore/Terminales/ManejadorDelSistema.h"

namespace zorve {

/// Asks the workspace at each call; identifiers are bundle identifiers.
class ManejadorMac final : public ManejadorDelSistema {
 public:
  [[nodiscard]] RespuestaDelSistema preguntar(std::string_view tipo) const override;
};

}  // namespace zorve
