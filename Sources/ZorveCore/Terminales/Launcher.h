#pragma once

#include <cstdint>
#include <expected>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "ZorveCore/Modelo.h"
#include "ZorveCore/Terminales/Ejecutor.h"
#include "ZorveCore/Terminales/Terminal.h"

namespace zorve {

/// Plans how a session is opened or focused; runs nothing but `ps`. Any thread but the main one.
struct Launcher {
  /// Opens finished sessions; stands in where a running one's own terminal is not recognised.
  TerminalRef terminal;
  Ejecutor const& ejecutor;
  std::string rutaPs;
  /// Among which a running session's own is looked for, the first match first.
  std::vector<AnfitrionaRef> conocidas;

  [[nodiscard]] std::expected<PlanDeApertura, FalloDeApertura> plan(Session const& sesion) const;

 private:
  [[nodiscard]] std::expected<PlanDeApertura, FalloDeApertura> planParaSesionViva(
      std::string const& sessionId, Session const& sesion) const;
  [[nodiscard]] std::expected<std::optional<std::string>, FalloDeApertura> ttyDe(std::int32_t pid) const;
  /// The known host among the process and its ancestors, or null.
  [[nodiscard]] std::expected<AnfitrionaRef, FalloDeApertura> laQueHospeda(std::int32_t pid) const;
};

}  // namespace zorve
