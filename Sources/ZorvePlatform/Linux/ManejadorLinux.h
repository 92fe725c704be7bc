#pragma once

#include <string>

#include "ZorveCore/ManejadorDelSistema.h"

namespace zorve {

/// The system's terminal by the alternatives link behind x-terminal-emulator.
class ManejadorLinux final : public ManejadorDelSistema {
 public:
  static constexpr char const* enlacePorDefecto = "/etc/alternatives/x-terminal-emulator";

  explicit ManejadorLinux(std::string enlace = enlacePorDefecto);

  /// Any `tipo` but the one of shell scripts has no handler.
  [[nodiscard]] std::optional<std::string> aplicacionPara(std::string_view tipo) const override;

 private:
  std::string enlace_;
};

/// The identifier of the known terminal that the program at `ruta` starts; Debian's ".wrapper" scripts stand
/// for the program they wrap. Nothing when it is none.
[[nodiscard]] std::optional<std::string> terminalDelPrograma(std::string_view ruta);

}  // namespace zorve
