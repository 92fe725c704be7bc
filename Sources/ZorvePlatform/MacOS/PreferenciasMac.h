#pragma once

#include "ZorveCore/Preferencias.h"

namespace zorve {

/// The user's defaults in the domain "com.sarnol.zorve": the standard defaults inside the application's
/// bundle, the same domain by name outside of it. The system writes them in its own time; destroying this
/// object waits for that, so that a program that ends at once loses nothing. Writing does not fail.
class PreferenciasMac final : public Preferencias {
 public:
  PreferenciasMac() = default;
  PreferenciasMac(PreferenciasMac const&) = delete;
  PreferenciasMac& operator=(PreferenciasMac const&) = delete;
  ~PreferenciasMac() override;

  [[nodiscard]] std::expected<std::optional<Valor>, IndexError> leer(std::string const& clave) const override;
  [[nodiscard]] std::expected<void, IndexError> escribir(std::string const& clave,
                                                         Valor const& valor) override;
  [[nodiscard]] std::expected<void, IndexError> quitar(std::string const& clave) override;
};

}  // namespace zorve
