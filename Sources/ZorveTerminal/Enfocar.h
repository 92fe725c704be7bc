#pragma once

#include <expected>
#include <string>

#include "ZorveCore/FichaDeTerminal.h"
#include "ZorveTerminal/EleccionDeVentana.h"

namespace zorve {

/// Brings the session on `tty` (with or without "/dev/") to the front, as the terminal `ficha` that shows it
/// does. Fails with one sentence for a person.
[[nodiscard]] std::expected<void, std::string> enfocar(FichaDeTerminal const& ficha, std::string const& tty);

/// The sentence for a session whose window is not found.
[[nodiscard]] std::string frase(SinVentana porque, FichaDeTerminal const& ficha, std::string const& tty);

}  // namespace zorve
