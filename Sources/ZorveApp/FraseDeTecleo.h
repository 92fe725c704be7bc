#pragma once

#include <string>
#include <string_view>

#include "ZorveApp/Idioma.h"

namespace zorve {

/// Why a session is not opened where its line would be typed: it holds control characters, made visible in
/// `directorio`.
[[nodiscard]] std::string noSeTeclea(std::string_view directorio, Idioma idioma);

}  // namespace zorve
