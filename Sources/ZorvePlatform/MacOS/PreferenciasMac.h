#pragma once

#include <string>
#include <utility>

#include "ZorveCore/Preferencias.h"

namespace zorve {

/// The user's defaults in the domain "com.sarnol.zorve": the standard defaults inside the application's
/// bundle, the same domain by name outside of it. The system's own daemon has what is written at once and
/// saves it in its own time, also when the program ends. Writing does not fail.
class PreferenciasMac final : public Preferencias {
 public:
  explicit PreferenciasMac(std::string dominio = "com.sarnol.zorve") : dominio_{std::move(dominio)} {}

  [[nodiscard]] std::expected<std::optional<Valor>, IndexError> leer(std::string const& clave) const override;
  [[nodiscard]] std::expected<void, IndexError> escribir(std::string const& clave,
                                                         Valor const& valor) override;
  [[nodiscard]] std::expected<void, IndexError> quitar(std::string const& clave) override;

 private:
  std::string dominio_;
};

}  // namespace zorve
