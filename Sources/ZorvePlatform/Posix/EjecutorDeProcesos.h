#pragma once

#include "ZorveCore/Ejecutor.h"

namespace zorve {

/// Starts real processes. They get /dev/null as standard input, one pipe for both output streams, no other
/// descriptor of ours, every signal at its default and none blocked; directory and environment are ours. The
/// pipe is read to its end before waiting. Stateless; any thread, several at once.
class EjecutorDeProcesos final : public Ejecutor {
 public:
  [[nodiscard]] std::expected<ResultadoDeEjecucion, FalloDelSistema> correr(
      std::string const& ruta, std::span<std::string const> args) const override;
};

}  // namespace zorve
