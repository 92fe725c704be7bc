#pragma once

#include <cstdlib>
#include <string>

namespace zorve {

/// The value of an environment variable of this process; the empty text where there is none. Any thread, as
/// long as none changes the environment.
[[nodiscard]] inline std::string variable(char const* nombre) {
  char const* const valor = std::getenv(nombre);  // NOLINT(concurrency-mt-unsafe): the contract above
  return valor == nullptr ? std::string{} : std::string{valor};
}

}  // namespace zorve
