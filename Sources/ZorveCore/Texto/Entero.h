#pragma once

#include <charconv>
#include <concepts>
#include <memory>
#include <optional>
#include <string_view>

namespace zorve {

/// The number that the whole of `texto` writes in decimal, digits and at most a "-" before them; nothing when
/// it is anything else or does not fit.
template <std::integral Entero>
[[nodiscard]] std::optional<Entero> enteroEn(std::string_view texto) {
  Entero valor{};
  auto const* const fin = std::to_address(texto.end());
  auto const [hasta, error] = std::from_chars(std::to_address(texto.begin()), fin, valor);
  return error == std::errc{} && hasta == fin ? std::optional{valor} : std::nullopt;
}

}  // namespace zorve
