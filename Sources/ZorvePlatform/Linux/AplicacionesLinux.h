#pragma once

#include <string>

#include "ZorveCore/AplicacionesInstaladas.h"
#include "ZorvePlatform/Linux/EntornoLinux.h"

namespace zorve {

/// Knows an application by an executable of that name in the PATH, or by a desktop entry of that name whose
/// program exists. x-terminal-emulator counts only where it leads to none of the known terminals. Of several
/// entries of one name the user's own decides, and a hidden one counts as none.
class AplicacionesLinux final : public AplicacionesInstaladas {
 public:
  explicit AplicacionesLinux(EntornoLinux entorno);

  [[nodiscard]] bool hay(std::string const& identificador) const override;

 private:
  EntornoLinux entorno_;
};

/// The absolute path of the program that the desktop entry `identificador` (its file name without ".desktop")
/// starts; empty when there is no such entry, it is hidden, or its program does not exist.
[[nodiscard]] std::string programaDeLaEntrada(EntornoLinux const& entorno, std::string const& identificador);

}  // namespace zorve
