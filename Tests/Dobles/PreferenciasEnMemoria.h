#pragma once

#include <map>
#include <mutex>
#include <optional>
#include <string>

#include "ZorveCore/Preferencias.h"

namespace zorve::dobles {

/// Preferences that live as long as the object. With `fallo` set, every operation fails with it.
class PreferenciasEnMemoria final : public Preferencias {
 public:
  PreferenciasEnMemoria() = default;
  explicit PreferenciasEnMemoria(std::map<std::string, Valor> valores);

  [[nodiscard]] std::expected<std::optional<Valor>, IndexError> leer(std::string const& clave) const override;
  [[nodiscard]] std::expected<void, IndexError> escribir(std::string const& clave,
                                                         Valor const& valor) override;
  [[nodiscard]] std::expected<void, IndexError> quitar(std::string const& clave) override;

  void fallarCon(std::optional<IndexError> fallo);
  /// How many times something was written or removed.
  [[nodiscard]] int cambios() const;

 private:
  mutable std::mutex cerrojo_;
  std::map<std::string, Valor> valores_;
  std::optional<IndexError> fallo_;
  int cambios_ = 0;
};

}  // namespace zorve::dobles
