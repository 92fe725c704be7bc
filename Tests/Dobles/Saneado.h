#pragma once

namespace zorve::pruebas {

/// Whether the tests and the programs that they start were built with a sanitizer, which takes memory of its
/// own and which no tracer may watch.
#ifdef ZORVE_SANEADO
inline constexpr bool saneado = true;
#else
inline constexpr bool saneado = false;
#endif

}  // namespace zorve::pruebas
