#pragma once

#include "ZorveCore/Texto/TextoPlegado.h"

namespace zorve {

/// The folding rule of the user's locale: the first of LC_ALL, LC_CTYPE, LANG that is set to something.
/// Any thread, as long as none changes the environment.
[[nodiscard]] ReglaDePlegado reglaDelEntorno();

}  // namespace zorve
