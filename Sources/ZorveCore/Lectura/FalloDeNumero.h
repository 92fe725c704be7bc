#pragma once

namespace zorve {

/// Whether an error code of simdjson says that a number alone made a document unreadable. Versions from 3.9
/// on tell an integer beyond 64 bits (`BIGINT_ERROR`) from other numbers (`NUMBER_ERROR`); earlier ones do
/// not know that code.
template <class Codigo>
[[nodiscard]] constexpr bool esFalloDeNumero(Codigo codigo) {
  if constexpr (requires { Codigo::BIGINT_ERROR; }) {
    if (codigo == Codigo::BIGINT_ERROR) return true;
  }
  return codigo == Codigo::NUMBER_ERROR;
}

}  // namespace zorve
