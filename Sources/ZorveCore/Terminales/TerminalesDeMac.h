#pragma once

#include <vector>

#include "ZorveCore/Terminales/AplicacionesInstaladas.h"
#include "ZorveCore/Terminales/Terminal.h"

namespace zorve {

/// The three macOS drivers in their order: iTerm2, Ghostty, Terminal. `aplicaciones` must outlive them.
[[nodiscard]] std::vector<TerminalRef> todas(AplicacionesInstaladas const& aplicaciones);

}  // namespace zorve
