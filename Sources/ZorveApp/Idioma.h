#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <utility>

#include "ZorveCore/Enumeracion.h"

namespace zorve {

/// The languages of the interface.
enum class Idioma : std::uint8_t { en, es };

template <>
struct Casos<Idioma> {
  static constexpr std::array<std::pair<Idioma, std::string_view>, 2> tabla{
      {{Idioma::en, "en"}, {Idioma::es, "es"}}};
};

/// The language that a stored text selects: Spanish for exactly "es", English for anything else or nothing.
[[nodiscard]] Idioma idiomaGuardado(std::string_view texto);

}  // namespace zorve
