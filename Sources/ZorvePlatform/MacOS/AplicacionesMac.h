#pragma once

#include "ZorveCore/Terminales/AplicacionesInstaladas.h"

namespace zorve {

/// Asks the workspace at each call, by bundle identifier; where the application lies does not matter.
class AplicacionesMac final : public AplicacionesInstaladas {
 public:
  [[nodiscard]] bool hay(std::string const& identificador) const override;
};

}  // namespace zorve
