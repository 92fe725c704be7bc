#pragma once

#include <string>

namespace zorve {

/// Tells which applications this machine has. Any thread.
class AplicacionesInstaladas {
 public:
  AplicacionesInstaladas() = default;
  AplicacionesInstaladas(AplicacionesInstaladas const&) = delete;
  AplicacionesInstaladas& operator=(AplicacionesInstaladas const&) = delete;
  virtual ~AplicacionesInstaladas() = default;

  /// Whether the system knows an application with this identifier.
  [[nodiscard]] virtual bool hay(std::string const& identificador) const = 0;
};

}  // namespace zorve
