#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zorve {

/// Tells which application the system opens a kind of document with. Any thread.
class ManejadorDelSistema {
 public:
  ManejadorDelSistema() = default;
  ManejadorDelSistema(ManejadorDelSistema const&) = delete;
  ManejadorDelSistema& operator=(ManejadorDelSistema const&) = delete;
  virtual ~ManejadorDelSistema() = default;

  /// Looks up what the other operations hand over, where that takes time: may take seconds, so in the
  /// background, before each use. Nothing where the system answers at once.
  virtual void mirar() const;
  /// The identifier of the default application for the uniform type `tipo`; nothing when the system does not
  /// know the type, has no application for it, or the application has no identifier.
  [[nodiscard]] virtual std::optional<std::string> aplicacionPara(std::string_view tipo) const = 0;
  /// Where the system's answer for `tipo` comes from, as a person knows it ("$TERMINAL"); nothing where there
  /// is only one place, or no answer.
  [[nodiscard]] virtual std::optional<std::string> dichoPor(std::string_view tipo) const;
};

}  // namespace zorve
