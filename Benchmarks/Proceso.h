#pragma once

#include <functional>
#include <string>
#include <vector>

namespace zorve::medir {

/// What a whole process took.
struct Proceso {
  int codigo = -1;
  double ms = 0;
  /// Its largest resident memory.
  double mebibytes = 0;
};

/// Runs a program found by its path or its name, its output thrown away, and waits for its end.
[[nodiscard]] Proceso correr(std::vector<std::string> const& palabras);

/// Runs `hacer` in a process of its own.
[[nodiscard]] Proceso aparte(std::function<void()> const& hacer);

/// Whether a program of this name can be found.
[[nodiscard]] bool hayPrograma(std::string const& nombre);

}  // namespace zorve::medir
