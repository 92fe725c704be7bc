#pragma once

#include "ZorveCore/ManejadorDelSistema.h"

namespace zorve {

/// Asks the workspace at each call; identifiers are bundle identifiers.
class ManejadorMac final : public ManejadorDelSistema {
 public:
  [[nodiscard]] std::optional<std::string> aplicacionPara(std::string_view tipo) const override;
};

}  // namespace zorve
