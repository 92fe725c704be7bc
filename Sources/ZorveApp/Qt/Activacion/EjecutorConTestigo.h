#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ZorveCore/Terminales/Ejecutor.h"

namespace zorve {

/// Runs programs with one environment, and the one that opens terminals with the leave for its window to come
/// to the front.
class EjecutorConTestigo final : public Ejecutor {
 public:
  /// `entorno`: every child's variables ("NAME=value"). `conVentana`: the absolute path of the program that
  /// gets `testigo`'s variables besides; `testigo` is called on the thread that runs it.
  EjecutorConTestigo(std::vector<std::string> entorno, std::string conVentana,
                     std::function<std::vector<std::string>()> testigo);

  [[nodiscard]] std::expected<ResultadoDeEjecucion, FalloDelSistema> correr(
      std::string const& ruta, std::span<std::string const> args) const override;

 private:
  std::vector<std::string> entorno_;
  std::string conVentana_;
  std::function<std::vector<std::string>()> testigo_;
};

}  // namespace zorve
