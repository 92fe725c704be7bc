#pragma once

#include "ZorveApp/InicioDeSesion.h"

namespace zorve::tui {

/// A panel in a terminal starts with nobody's session.
class SinArranque final : public InicioDeSesion {
 public:
  [[nodiscard]] bool activo() const override { return false; }
  [[nodiscard]] std::expected<void, std::string> registrar() override {
    return std::unexpected{std::string{"a panel in a terminal does not start at login"}};
  }
  [[nodiscard]] std::expected<void, std::string> retirar() override { return {}; }
};

}  // namespace zorve::tui
