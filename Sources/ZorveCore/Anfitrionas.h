#pragma once

#include <functional>
#include <vector>

#include "ZorveCore/Terminal.h"

namespace zorve {

/// The terminals among which a running session's own is looked for, the first match first: made from those
/// that the catalogue knows and the one that opens sessions. Any thread.
using Anfitrionas = std::function<std::vector<TerminalRef>(std::vector<TerminalRef> const& conocidas,
                                                           TerminalRef const& elegida)>;

/// Those that the catalogue knows and no other.
[[nodiscard]] std::vector<TerminalRef> soloLasConocidas(std::vector<TerminalRef> const& conocidas,
                                                        TerminalRef const& elegida);

}  // namespace zorve
