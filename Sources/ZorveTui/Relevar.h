#pragma once

#include <string>

#include "ZorveTui/Salida.h"

namespace zorve::tui {

/// Puts the program in this one's place: in its directory, on the controlling terminal where a standard
/// stream is none, every signal at its default. Comes back only when that cannot be done, with the reason.
[[nodiscard]] std::string relevar(Relevo const& relevo);

/// Ends the process by the signal, as it would have ended without us.
[[noreturn]] void morirPor(int senal);

}  // namespace zorve::tui
