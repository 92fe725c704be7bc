#pragma once

#include <cstdlib>

namespace zorve::fuzz {

/// Stops the fuzzer where a property does not hold.
inline void exigir(bool seCumple) {
  if (!seCumple) std::abort();
}

}  // namespace zorve::fuzz
