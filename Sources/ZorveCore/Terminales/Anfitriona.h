#pragma once

#include <expected>
#include <memory>
#include <string>
#include <string_view>

#include "ZorveCore/Terminales/PlanDeApertura.h"

namespace zorve {

/// What a running session may run in, and how that comes to the front. Immutable, and runs nothing; any
/// thread.
class Anfitriona {
 public:
  Anfitriona() = default;
  Anfitriona(Anfitriona const&) = delete;
  Anfitriona& operator=(Anfitriona const&) = delete;
  virtual ~Anfitriona() = default;

  /// Shown to people ("iTerm2").
  [[nodiscard]] virtual std::string nombre() const = 0;
  /// Whether a process whose command `ps` prints as `command` is one in which its sessions run.
  [[nodiscard]] virtual bool hospeda(std::string_view command) const = 0;
  /// Whether it can bring an existing session to the front.
  [[nodiscard]] virtual bool puedeEnfocar() const = 0;
  /// What is on the device `tty`, with or without "/dev/", to the front.
  [[nodiscard]] virtual std::expected<PlanDeApertura, IndexError> planParaEnfocar(
      std::string const& tty) const = 0;
};

using AnfitrionaRef = std::shared_ptr<Anfitriona const>;

/// The sentence for a person when the host `nombre` has no session on the device.
[[nodiscard]] std::string sesionNoHallada(std::string const& nombre, std::string const& ttyCorto);

}  // namespace zorve
