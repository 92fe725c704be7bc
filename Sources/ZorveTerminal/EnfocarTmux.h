#pragma once

#include <expected>
#include <optional>
#include <span>
#include <string>

#include <sys/types.h>

#include "ZorveCore/Terminales/FichaDeTerminal.h"

namespace zorve::ayudante {

/// Brings the tmux pane on the device `tty` (with or without "/dev/") to the front: a client of its server
/// shows session, window and pane, then the client's own window comes to the front, a tmux around it too.
/// Without a client, a window of `elegida` (null: nobody says which) shows it. `deQuien`, where it is known,
/// is a process of the session. Fails with one sentence.
[[nodiscard]] std::expected<void, std::string> enfocarEnTmux(std::string const& tty,
                                                             FichaDeTerminal const* elegida,
                                                             std::span<std::string const> entorno,
                                                             std::optional<pid_t> deQuien = {});

}  // namespace zorve::ayudante
