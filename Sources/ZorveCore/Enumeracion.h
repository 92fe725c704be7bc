#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

namespace zorve {

/// The cases of an enumeration with their raw texts, in declaration order. Specialised beside each
/// enumeration as `static constexpr std::array<std::pair<E, std::string_view>, N> tabla`.
template <class E>
struct Casos;

/// The raw text of a case.
template <class E>
[[nodiscard]] constexpr std::string_view textoCrudo(E caso) {
  for (auto const& [valor, texto] : Casos<E>::tabla) {
    if (valor == caso) return texto;
  }
  return {};
}

/// The case whose raw text is exactly `texto` (case-sensitive), or nothing.
template <class E>
[[nodiscard]] constexpr std::optional<E> desdeTextoCrudo(std::string_view texto) {
  for (auto const& [valor, crudo] : Casos<E>::tabla) {
    if (crudo == texto) return valor;
  }
  return std::nullopt;
}

/// Every case, in declaration order.
template <class E>
[[nodiscard]] constexpr auto todosLosCasos() {
  std::array<E, Casos<E>::tabla.size()> casos{};
  std::ranges::transform(Casos<E>::tabla, casos.begin(), [](auto const& fila) { return fila.first; });
  return casos;
}

}  // namespace zorve
