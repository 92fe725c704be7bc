#pragma once

#include <string>
#include <vector>

#include "ZorveCore/Terminales/Ejecutor.h"

namespace zorve {

/// Starts real processes. They get /dev/null as standard input, one pipe for both output streams, no other
/// descriptor of ours, every signal at its default and none blocked; the directory is ours. The pipe is read
/// to its end before waiting. A program called ps gets nothing of the environment but PATH, and LC_ALL=C, so
/// that no COLUMNS or PS_FORMAT of the person's changes what it prints. Any thread, several at once.
class EjecutorDeProcesos final : public Ejecutor {
 public:
  /// Children get this process's environment as it is now.
  EjecutorDeProcesos();
  /// Children get `entorno`, "NAME=value" each.
  explicit EjecutorDeProcesos(std::vector<std::string> entorno);

  [[nodiscard]] std::expected<ResultadoDeEjecucion, FalloDelSistema> correr(
      std::string const& ruta, std::span<std::string const> args) const override;

 private:
  std::vector<std::string> entorno_;
};

/// What of `entorno` a ps gets.
[[nodiscard]] std::vector<std::string> entornoParaPs(std::vector<std::string> const& entorno);

/// The variables of this process. Not while another thread changes them.
[[nodiscard]] std::vector<std::string> entornoDelProceso();

}  // namespace zorve
