#pragma once

#include <string_view>

namespace zorve::ayudante {

/// The text of Guion.sh, built into the executable.
[[nodiscard]] std::string_view guionDeShell();

}  // namespace zorve::ayudante
