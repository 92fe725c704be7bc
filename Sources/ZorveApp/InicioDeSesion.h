#pragma once

#include <expected>
#include <string>

namespace zorve {

/// Whether the application starts when its user logs in. Main thread only.
class InicioDeSesion {
 public:
  InicioDeSesion() = default;
  InicioDeSesion(InicioDeSesion const&) = delete;
  InicioDeSesion& operator=(InicioDeSesion const&) = delete;
  virtual ~InicioDeSesion() = default;

  /// The real state, asked of the system at each call.
  [[nodiscard]] virtual bool activo() const = 0;
  /// Fail with the system's one-line description.
  [[nodiscard]] virtual std::expected<void, std::string> registrar() = 0;
  [[nodiscard]] virtual std::expected<void, std::string> retirar() = 0;
};

}  // namespace zorve
