#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zorve {

/// What the system says of a kind of document.
struct RespuestaDelSistema {
  /// The identifier of the default application; nothing when the system does not know the kind, has no
  /// application for it, or the application has no identifier.
  std::optional<std::string> aplicacion;
  /// Where the answer comes from, as a person knows it ("$TERMINAL"); nothing where there is only one place,
  /// or no answer.
  std::optional<std::string> dichoPor;
  bool operator==(RespuestaDelSistema const&) const = default;
};

/// Tells which application the system opens a kind of document with. Any thread.
class ManejadorDelSistema {
 public:
  ManejadorDelSistema() = default;
  ManejadorDelSistema(ManejadorDelSistema const&) = delete;
  ManejadorDelSistema& operator=(ManejadorDelSistema const&) = delete;
  virtual ~ManejadorDelSistema() = default;

  /// For the uniform type `tipo`. Asks anew each time, which may take seconds: in the background.
  [[nodiscard]] virtual RespuestaDelSistema preguntar(std::string_view tipo) const = 0;
};

}  // namespace zorve
