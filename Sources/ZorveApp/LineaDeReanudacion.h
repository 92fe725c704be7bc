#pragma once

#include <optional>
#include <string>

#include "ZorveCore/Modelo.h"

namespace zorve {

/// The line that resumes the session from any directory, to be given to sh, bash, zsh or fish. Nothing for a
/// session without an identifier, and where the line would hold control characters, on which a terminal acts
/// that it is pasted into.
[[nodiscard]] std::optional<std::string> lineaDeReanudacion(Session const& sesion);

}  // namespace zorve
