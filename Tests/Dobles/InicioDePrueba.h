#pragma once

#include <optional>
#include <string>

#include "ZorveApp/InicioDeSesion.h"

namespace zorve::dobles {

/// Launch at login as a switch. With `fallo` set, switching fails with it and changes nothing.
class InicioDePrueba final : public InicioDeSesion {
 public:
  [[nodiscard]] bool activo() const override { return encendido; }
  [[nodiscard]] std::expected<void, std::string> registrar() override { return poner(true); }
  [[nodiscard]] std::expected<void, std::string> retirar() override { return poner(false); }

  bool encendido = false;
  std::optional<std::string> fallo;

 private:
  std::expected<void, std::string> poner(bool valor) {
    if (fallo) return std::unexpected{*fallo};
    encendido = valor;
    return {};
  }
};

}  // namespace zorve::dobles
