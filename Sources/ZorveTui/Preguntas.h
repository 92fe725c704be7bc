#pragma once

#include <string_view>

namespace zorve::tui {

/// What a terminal is asked at the start: its background (OSC 11), whether it has synchronised output (DECRQM
/// of mode 2026), and last its attributes (DA1), which every terminal answers: by then the others have come.
inline constexpr std::string_view preguntas = "\x1B]11;?\x1B\\\x1B[?2026$p\x1B[c";

}  // namespace zorve::tui
