#pragma once

#include "ZorveCore/Anfitrionas.h"
#include "ZorveCore/Terminal.h"

namespace zorve {

/// The multiplexer tmux, which hosts sessions inside the windows of other terminals. It is no choice for
/// anybody: it never counts as installed and stands in no catalogue.
class TerminalTmux final : public Terminal {
 public:
  /// `elegida` opens a window where tmux has none; `puedeEnfocar` tells whether some terminal's windows can
  /// be brought to the front in this graphical session.
  TerminalTmux(std::string rutaDelAyudante, TerminalRef elegida, bool puedeEnfocar);

  [[nodiscard]] std::string identificador() const override;
  [[nodiscard]] std::string nombre() const override;
  [[nodiscard]] std::string nombreDelBundle() const override;
  [[nodiscard]] bool puedeEnfocar() const override;
  [[nodiscard]] bool estaInstalada() const override;
  /// Whether `command` is the name that a tmux server gives itself, with its blank.
  [[nodiscard]] bool hospeda(std::string_view command) const override;
  /// What the chosen terminal answers.
  [[nodiscard]] PlanDeApertura planParaAbrir(std::string const& cwd,
                                             std::string const& comando) const override;
  /// One run of the helper with the pane's device and the chosen terminal's identifier.
  [[nodiscard]] std::expected<PlanDeApertura, IndexError> planParaEnfocar(
      std::string const& tty) const override;

 private:
  std::string rutaDelAyudante_;
  TerminalRef elegida_;
  bool puedeEnfocar_;
};

/// The known terminals and, after them, tmux. `rutaDelAyudante` is the absolute path of zorve-terminal.
[[nodiscard]] Anfitrionas anfitrionasDeLinux(std::string rutaDelAyudante);

}  // namespace zorve
