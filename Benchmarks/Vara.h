#pragma once

#include <cstdint>
#include <string>

namespace zorve::medir {

/// What the bare reading of every transcript's two windows came to.
struct Vara {
  std::uint64_t archivos = 0;
  std::uint64_t bytes = 0;
  /// Of these, the bytes of files over 64 KiB.
  std::uint64_t bytesDeLargos = 0;
};

/// Lists the folders below `raiz`, asks every file's attributes and reads both of its windows with pread,
/// side by side on as many threads as there are processors, and looks at no byte.
[[nodiscard]] Vara leerVentanas(std::string const& raiz);

/// Asks the system to forget the cached contents of every file below `raiz`.
void olvidarCache(std::string const& raiz);

}  // namespace zorve::medir
