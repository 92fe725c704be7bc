#pragma once

#include <string>

#include "ZorveCore/Terminales/AplicacionesInstaladas.h"
#include "ZorveCore/Terminales/FichaDeTerminal.h"
#include "ZorvePlatform/Linux/EntornoLinux.h"

namespace zorve {

/// Knows an application by an executable of that name in the PATH, or by a desktop entry of that name whose
/// program exists; a known terminal's only if that program is one of its own, so that it can be opened.
/// x-terminal-emulator counts only where it leads to none of the known terminals. Of several
/// entries of one name the user's own decides, and a hidden one counts as none.
class AplicacionesLinux final : public AplicacionesInstaladas {
 public:
  explicit AplicacionesLinux(EntornoLinux entorno);

  [[nodiscard]] bool hay(std::string const& identificador) const override;

 private:
  EntornoLinux entorno_;
};

/// The absolute path of the terminal's executable: in the PATH, or where its desktop entry says; empty when
/// there is none.
[[nodiscard]] std::string programaDe(FichaDeTerminal const& ficha, EntornoLinux const& entorno);

}  // namespace zorve
