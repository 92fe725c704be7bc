#pragma once

#include <string>
#include <utility>

#include "ZorveCore/Preferencias.h"

namespace zorve {

/// The user's defaults in the domain "com.sarnol.zorve": the standard defaults inside the application's
/// bundle, the same domain by name outside of it. The system writes them in its own time; destroying this
/// object waits for that, so that a program that ends at once loses nothing. Writing does not fail.
class PreferenciasMac final : public Preferencias {
 public:
  explicit PreferenciasMac(std::string dominio = "com.sarnol.zorve") : dominio_{std::move(dominio)} {}
  PreferenciasMac(PreferenciasMac const&) = delete;
  PreferenciasMac& operator=(PreferenciasMac const&) = delete;
  ~PreferenciasMac() override;

  [[nodiscard]] std::expected<std::optional<Valor>, IndexError> leer(std::string const& clave) const override;
  [[nodiscard]] std::expected<void, IndexError> escribir(std::string const& clave,
                                                         Valor const& valor) override;
  [[nodiscard]] std::expected<void, IndexError> quitar(std::string const& clave) override;

 private:
  std::string dominio_;
};

}  // namespace zorve
