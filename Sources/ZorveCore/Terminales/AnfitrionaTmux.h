#pragma once

#include <string_view>

#include "ZorveCore/Terminales/Anfitrionas.h"

namespace zorve {

/// What a tmux server names its process.
inline constexpr std::string_view procesoDelServidorDeTmux = "tmux: server";

/// The multiplexer tmux, which hosts sessions inside the windows of terminals.
class AnfitrionaTmux final : public Anfitriona {
 public:
  /// `elegida` opens a window where tmux has none; `puedeEnfocar` tells whether some terminal's windows can
  /// be brought to the front in this graphical session.
  AnfitrionaTmux(std::string rutaDelAyudante, TerminalRef elegida, bool puedeEnfocar);

  [[nodiscard]] std::string nombre() const override;
  /// Whether `command` is the server's name, with its blank.
  [[nodiscard]] bool hospeda(std::string_view command) const override;
  [[nodiscard]] bool puedeEnfocar() const override;
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
