#pragma once

#include <cstdint>

namespace zorve {

/// Whether the code point steers a terminal or the direction of text without being seen: C1 controls, line
/// and paragraph separators, byte order marks and bidirectional controls. Any thread.
[[nodiscard]] bool seOculta(std::int32_t punto);

}  // namespace zorve
