#pragma once

#include <string>

#include "ZorveCore/AplicacionesInstaladas.h"
#include "ZorveCore/Terminal.h"

namespace zorve {

/// macOS's own terminal, driven by AppleScript. Focuses tabs by their device.
/// `rutaOsascript` is what runs the scripts; `aplicaciones` must outlive the driver.
class TerminalApple final : public Terminal {
 public:
  TerminalApple(std::string rutaOsascript, AplicacionesInstaladas const& aplicaciones);

  [[nodiscard]] std::string identificador() const override;
  [[nodiscard]] std::string nombre() const override;
  [[nodiscard]] std::string nombreDelBundle() const override;
  [[nodiscard]] bool puedeEnfocar() const override;
  [[nodiscard]] bool estaInstalada() const override;
  [[nodiscard]] PlanDeApertura planParaAbrir(std::string const& cwd,
                                             std::string const& comando) const override;
  [[nodiscard]] std::expected<PlanDeApertura, IndexError> planParaEnfocar(
      std::string const& tty) const override;

 private:
  std::string rutaOsascript_;
  AplicacionesInstaladas const& aplicaciones_;
};

}  // namespace zorve
