#pragma once

#include "ZorveCore/AplicacionesInstaladas.h"
#include "ZorvePlatform/Linux/EntornoLinux.h"

namespace zorve {

/// Knows an application by an executable of that name in the PATH, or by a desktop entry of that name whose
/// program exists. Of several entries of one name the user's own decides, and a hidden one counts as none.
class AplicacionesLinux final : public AplicacionesInstaladas {
 public:
  explicit AplicacionesLinux(EntornoLinux entorno);

  [[nodiscard]] bool hay(std::string const& identificador) const override;

 private:
  [[nodiscard]] bool hayEntrada(std::string const& identificador) const;

  EntornoLinux entorno_;
};

}  // namespace zorve
