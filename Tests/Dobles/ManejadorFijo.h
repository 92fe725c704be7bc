#pragma once

#include <optional>
#include <string>
#include <utility>

#include "ZorveCore/Terminales/ManejadorDelSistema.h"

namespace zorve::dobles {

/// A system whose handler for `tipo` is `identificador`; for any other type there is none.
class ManejadorFijo final : public ManejadorDelSistema {
 public:
  ManejadorFijo(std::string tipo, std::optional<std::string> suyo)
      : identificador{std::move(suyo)}, tipo_{std::move(tipo)} {}

  [[nodiscard]] RespuestaDelSistema preguntar(std::string_view tipo) const override {
    return tipo == tipo_ ? RespuestaDelSistema{.aplicacion = identificador} : RespuestaDelSistema{};
  }

  std::optional<std::string> identificador;

 private:
  std::string tipo_;
};

}  // namespace zorve::dobles
