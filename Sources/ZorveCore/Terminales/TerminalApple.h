#pragma once

#include "ZorveCore/Terminales/TerminalConGuiones.h"

namespace zorve {

/// macOS's own terminal. Focuses tabs by their device.
class TerminalApple final : public TerminalConGuiones {
 public:
  TerminalApple(std::string rutaOsascript, AplicacionesInstaladas const& aplicaciones);

  [[nodiscard]] bool puedeEnfocar() const override;
  [[nodiscard]] PlanDeApertura planParaAbrir(std::string const& cwd,
                                             std::string const& comando) const override;
  [[nodiscard]] std::expected<PlanDeApertura, IndexError> planParaEnfocar(
      std::string const& tty) const override;
};

}  // namespace zorve
