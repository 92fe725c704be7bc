#pragma once

#include <expected>
#include <string>

#include "ZorveCore/Terminales/FichaDeTerminal.h"
#include "ZorveTerminal/SesionEnTty.h"

namespace zorve::ayudante {

/// Has the terminal itself bring the session's window to the front, by the leave in this process's
/// environment (XDG_ACTIVATION_TOKEN or DESKTOP_STARTUP_ID), which a key press or a click gave. The only way
/// under GNOME's compositor without our extension; GNOME Console and GNOME Terminal know it. Whether the
/// window came nobody tells. Fails with one sentence, for other terminals and without a leave too.
[[nodiscard]] std::expected<void, std::string> enfocarPorTestigo(FichaDeTerminal const& ficha,
                                                                 SesionEnTty const& sesion);

}  // namespace zorve::ayudante
