#pragma once

#include "ZorveCore/Terminales/TerminalConGuiones.h"

namespace zorve {

/// iTerm2. Focuses sessions by their device.
class TerminalITerm final : public TerminalConGuiones {
 public:
  TerminalITerm(std::string rutaOsascript, AplicacionesInstaladas const& aplicaciones);

  [[nodiscard]] bool puedeEnfocar() const override;
  [[nodiscard]] PlanDeApertura planParaAbrir(std::string const& cwd,
                                             std::string const& comando) const override;
  [[nodiscard]] std::expected<PlanDeApertura, IndexError> planParaEnfocar(
      std::string const& tty) const override;
};

}  // namespace zorve
