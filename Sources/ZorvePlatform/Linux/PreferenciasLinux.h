#pragma once

#include <chrono>
#include <string>

#include "ZorveCore/Preferencias.h"
#include "ZorvePlatform/Linux/EntornoLinux.h"

namespace zorve {

/// Preferences in one JSON object on disk, read afresh at each call. A change is made under a lock that every
/// process of ours takes, keeps what it does not know, and replaces the file in one step (mode 0600); where
/// the file is a link, what it points to is replaced. A file that is no JSON object is never touched, and
/// none is written that is too long to be read. A change may wait for the lock: never on the main thread.
class PreferenciasLinux final : public Preferencias {
 public:
  /// How long a change waits for the lock.
  static constexpr std::chrono::milliseconds plazoDelCerrojo{2000};

  explicit PreferenciasLinux(std::string archivo, std::chrono::milliseconds plazo = plazoDelCerrojo);

  /// com.sarnol.zorve/preferences.json under the configuration folder.
  [[nodiscard]] static std::string archivoPorDefecto(EntornoLinux const& entorno);

  [[nodiscard]] std::expected<std::optional<Valor>, IndexError> leer(std::string const& clave) const override;
  [[nodiscard]] std::expected<void, IndexError> escribir(std::string const& clave,
                                                         Valor const& valor) override;
  [[nodiscard]] std::expected<void, IndexError> quitar(std::string const& clave) override;

 private:
  /// With nothing as `valor`, takes the key away.
  [[nodiscard]] std::expected<void, IndexError> cambiar(std::string const& clave,
                                                        std::optional<Valor> const& valor);

  std::string archivo_;
  std::chrono::milliseconds plazo_;
};

}  // namespace zorve
