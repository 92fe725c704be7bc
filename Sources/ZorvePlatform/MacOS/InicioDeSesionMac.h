#pragma once

#include "ZorveApp/InicioDeSesion.h"

namespace zorve {

/// The application's own login item.
class InicioDeSesionMac final : public InicioDeSesion {
 public:
  [[nodiscard]] bool activo() const override;
  [[nodiscard]] std::expected<void, std::string> registrar() override;
  [[nodiscard]] std::expected<void, std::string> retirar() override;
};

}  // namespace zorve
