#pragma once

#include <cstddef>
#include <functional>

namespace zorve {

/// How many threads (the caller's own included) are worth having for `tareas` tasks of which a thread should
/// do `porHilo` at least: no more than there are processors, at least one.
[[nodiscard]] std::size_t hilosPara(std::size_t tareas, std::size_t porHilo);

/// Runs `trabajador` on `hilos` threads side by side, the caller's among them, and returns when all have
/// ended. Where the system gives no further thread, fewer run. What one of them throws is thrown on to the
/// caller when all have ended; the first one counts.
void ladoALado(std::size_t hilos, std::function<void()> const& trabajador);

}  // namespace zorve
