#pragma once

#include <string>
#include <string_view>

#include "ZorveApp/Idioma.h"

namespace zorve::TextosDelDirectorio {

/// The help of a row whose directory is gone.
[[nodiscard]] std::string_view ayuda(Idioma idioma);
/// Why such a session does not open.
[[nodiscard]] std::string alAbrir(std::string_view directorio, Idioma idioma);

}  // namespace zorve::TextosDelDirectorio
