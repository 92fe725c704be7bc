#pragma once

#include "ZorveCore/Terminales/TerminalConGuiones.h"

namespace zorve {

/// Ghostty on macOS. It cannot focus what runs.
class TerminalGhostty final : public TerminalConGuiones {
 public:
  TerminalGhostty(std::string rutaOsascript, AplicacionesInstaladas const& aplicaciones);

  [[nodiscard]] bool puedeEnfocar() const override;
  [[nodiscard]] PlanDeApertura planParaAbrir(std::string const& cwd,
                                             std::string const& comando) const override;
  [[nodiscard]] std::expected<PlanDeApertura, IndexError> planParaEnfocar(
      std::string const& tty) const override;
};

}  // namespace zorve
