#pragma once

#include <functional>
#include <vector>

#include "ZorveCore/Terminales/Terminal.h"

namespace zorve {

/// The hosts among which a running session's own is looked for, the first match first: made from the
/// terminals that the catalogue knows and the one that opens sessions. Any thread.
using Anfitrionas = std::function<std::vector<AnfitrionaRef>(std::vector<TerminalRef> const& conocidas,
                                                             TerminalRef const& elegida)>;

/// The terminals that the catalogue knows and nothing else.
[[nodiscard]] std::vector<AnfitrionaRef> soloLasConocidas(std::vector<TerminalRef> const& conocidas,
                                                          TerminalRef const& elegida);

}  // namespace zorve
