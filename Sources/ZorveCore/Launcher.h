#pragma once

#include <cstdint>
#include <expected>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "ZorveCore/Ejecutor.h"
#include "ZorveCore/Modelo.h"
#include "ZorveCore/Terminal.h"

namespace zorve {

/// A failure of ours, or the system's when a program could not be started.
using FalloDeApertura = std::variant<IndexError, FalloDelSistema>;

/// Plans how a session is opened or focused; runs nothing but `ps`. Any thread but the main one.
struct Launcher {
  /// Opens finished sessions; stands in where a running one's own terminal is not recognised.
  TerminalRef terminal;
  Ejecutor const& ejecutor;
  std::string rutaPs;
  std::vector<TerminalRef> conocidas;

  [[nodiscard]] std::expected<PlanDeApertura, FalloDeApertura> plan(Session const& sesion) const;

 private:
  [[nodiscard]] std::expected<PlanDeApertura, FalloDeApertura> planParaSesionViva(
      std::string const& sessionId, Session const& sesion) const;
  [[nodiscard]] std::expected<std::optional<std::string>, FalloDeApertura> ttyDe(std::int32_t pid) const;
  /// The known terminal among the process and its ancestors, or null.
  [[nodiscard]] std::expected<TerminalRef, FalloDeApertura> terminalQueHospeda(std::int32_t pid) const;
};

}  // namespace zorve
