#pragma once

#include <expected>
#include <optional>
#include <string>

#include <sys/types.h>

#include "ZorveCore/Terminales/FichaDeTerminal.h"

namespace zorve::ayudante {

/// Brings the session on `tty` (with or without "/dev/") to the front, as the terminal `ficha` that shows it
/// does: its tab and split where the terminal can be told, its window, and that window's desktop. `deQuien`,
/// where it is known, is a process of the session. Fails with one sentence for a person.
[[nodiscard]] std::expected<void, std::string> enfocar(FichaDeTerminal const& ficha, std::string const& tty,
                                                       std::optional<pid_t> deQuien = {});

}  // namespace zorve::ayudante
