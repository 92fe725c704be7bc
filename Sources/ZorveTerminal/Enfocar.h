#pragma once

#include <expected>
#include <string>

#include "ZorveCore/FichaDeTerminal.h"

namespace zorve {

/// Brings the session on `tty` (with or without "/dev/") to the front, as the terminal `ficha` that shows it
/// does: its tab and split where the terminal can be told, its window, and that window's desktop. Fails with
/// one sentence for a person.
[[nodiscard]] std::expected<void, std::string> enfocar(FichaDeTerminal const& ficha, std::string const& tty);

}  // namespace zorve
