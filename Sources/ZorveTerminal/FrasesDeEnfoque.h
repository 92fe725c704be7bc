#pragma once

#include <string>

#include "ZorveCore/Terminales/FichaDeTerminal.h"

namespace zorve::ayudante {

/// Sentences for a person about the session on `tty` (with or without "/dev/").

/// Its window is gone.
[[nodiscard]] std::string fraseNoEsta(FichaDeTerminal const& ficha, std::string const& tty);
/// It may be in any of several windows.
[[nodiscard]] std::string fraseVarias(FichaDeTerminal const& ficha, std::string const& tty);
/// Its terminal is silent.
[[nodiscard]] std::string fraseNoContesta(FichaDeTerminal const& ficha, std::string const& tty);
/// Its window was found, but the keyboard did not follow.
[[nodiscard]] std::string fraseNoVino(FichaDeTerminal const& ficha);
/// GNOME's compositor without our extension: nothing else brings that terminal's windows to the front, or
/// nothing tells which of several it is.
[[nodiscard]] std::string fraseSinExtension(FichaDeTerminal const& ficha, std::string const& tty);
[[nodiscard]] std::string fraseVariasSinExtension(FichaDeTerminal const& ficha, std::string const& tty);

}  // namespace zorve::ayudante
