#pragma once

#include <cstdint>
#include <expected>
#include <span>
#include <string>

#include "ZorveCore/FalloDelSistema.h"

namespace zorve {

/// How a program ended: its exit status (128 plus the signal's number when a signal ended it) and what it
/// wrote to both streams, interleaved, with invalid UTF-8 replaced by U+FFFD.
struct ResultadoDeEjecucion {
  std::int32_t codigo = 0;
  std::string salida;
  bool operator==(ResultadoDeEjecucion const&) const = default;
};

/// Runs programs.
class Ejecutor {
 public:
  Ejecutor() = default;
  Ejecutor(Ejecutor const&) = delete;
  Ejecutor& operator=(Ejecutor const&) = delete;
  virtual ~Ejecutor() = default;

  /// Runs the executable at the absolute path `ruta` with `args`, no shell in between, and waits for its end
  /// without a time limit. Fails when it cannot be started. Any thread but the main one; several at once.
  [[nodiscard]] virtual std::expected<ResultadoDeEjecucion, FalloDelSistema> correr(
      std::string const& ruta, std::span<std::string const> args) const = 0;
};

}  // namespace zorve
