#pragma once

#include <string>
#include <vector>

#include "ZorveCore/Terminales/AplicacionesInstaladas.h"
#include "ZorveCore/Terminales/FichaDeTerminal.h"
#include "ZorveCore/Terminales/Terminal.h"

namespace zorve {

/// A Linux terminal, driven by the helper executable: its plans are one command each, that runs the helper
/// with the terminal's identifier and everything else as separate arguments.
class TerminalDeLinux final : public Terminal {
 public:
  /// Both references outlive the driver. `sesion` tells what draws the windows now.
  TerminalDeLinux(FichaDeTerminal const& ficha, AplicacionesInstaladas const& aplicaciones,
                  std::string rutaDelAyudante, SesionDeAhora sesion);

  [[nodiscard]] std::string identificador() const override;
  [[nodiscard]] std::string nombre() const override;
  /// The desktop entry's file name.
  [[nodiscard]] std::string nombreDelBundle() const override;
  /// Whether its windows can be brought to the front in the graphical session as it is now.
  [[nodiscard]] bool puedeEnfocar() const override;
  [[nodiscard]] bool estaInstalada() const override;
  /// Whether the base name of `command` is one of the terminal's processes.
  [[nodiscard]] bool hospeda(std::string_view command) const override;
  [[nodiscard]] PlanDeApertura planParaAbrir(std::string const& cwd,
                                             std::string const& comando) const override;
  [[nodiscard]] std::expected<PlanDeApertura, IndexError> planParaEnfocar(
      std::string const& tty) const override;

 private:
  FichaDeTerminal const& ficha_;
  AplicacionesInstaladas const& aplicaciones_;
  std::string rutaDelAyudante_;
  SesionDeAhora sesion_;
};

/// The drivers of the known Linux terminals, in the order in which they are listed. `rutaDelAyudante` is the
/// absolute path of the executable zorve-terminal; `aplicaciones` outlives the drivers. `sesion` decides, at
/// each question, which of them can bring a session to the front.
[[nodiscard]] std::vector<TerminalRef> terminalesDeLinux(AplicacionesInstaladas const& aplicaciones,
                                                         std::string const& rutaDelAyudante,
                                                         SesionDeAhora const& sesion);
/// The same where that never changes.
[[nodiscard]] std::vector<TerminalRef> terminalesDeLinux(AplicacionesInstaladas const& aplicaciones,
                                                         std::string const& rutaDelAyudante,
                                                         SesionGrafica sesion = SesionGrafica::otra);

/// Whether the system knows one of the terminal's executables, or its desktop entry.
[[nodiscard]] bool estaInstalada(FichaDeTerminal const& ficha, AplicacionesInstaladas const& aplicaciones);

/// Whether the terminal's windows can be brought to the front in that graphical session.
[[nodiscard]] bool seEnfocaEn(FichaDeTerminal const& ficha, SesionGrafica sesion);

/// Whether a process of that name hosts the terminal's shells.
[[nodiscard]] bool esProcesoDe(FichaDeTerminal const& ficha, std::string_view nombre);

}  // namespace zorve
