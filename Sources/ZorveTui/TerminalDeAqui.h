#pragma once

#include <string>
#include <utility>

#include "ZorveCore/Terminales/Terminal.h"

namespace zorve::tui {

/// The terminal that shows the panel, where no other one can be opened. It stands in the catalogue so that
/// the rest of the application knows of one; the panel itself opens what is opened in it.
class TerminalDeAqui final : public Terminal {
 public:
  /// `nombre` as people are told of it ("this terminal").
  explicit TerminalDeAqui(std::string nombre) : nombre_{std::move(nombre)} {}

  [[nodiscard]] std::string nombre() const override { return nombre_; }
  [[nodiscard]] bool hospeda(std::string_view /*command*/) const override { return false; }
  [[nodiscard]] bool puedeEnfocar() const override { return false; }
  [[nodiscard]] std::expected<PlanDeApertura, IndexError> planParaEnfocar(
      std::string const& tty) const override;
  [[nodiscard]] std::string identificador() const override { return "here"; }
  [[nodiscard]] std::string nombreDelBundle() const override { return {}; }
  [[nodiscard]] bool estaInstalada() const override { return true; }
  [[nodiscard]] PlanDeApertura planParaAbrir(std::string const& cwd,
                                             std::string const& comando) const override;

 private:
  std::string nombre_;
};

}  // namespace zorve::tui
