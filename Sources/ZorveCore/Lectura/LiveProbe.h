#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "ZorveCore/Lectura/Archivos.h"
#include "ZorveCore/Lectura/VidaDeProcesos.h"
#include "ZorveCore/Modelo.h"

namespace zorve {

/// A session that is running now. `estado` is `idle` or `busy`.
struct LiveInfo {
  std::int32_t pid = 0;
  LiveState estado = LiveState::idle;
  std::string cwd;
  std::optional<std::string> nombre;
  bool operator==(LiveInfo const&) const = default;
};

/// Running sessions keyed by session identifier.
using SesionesVivas = std::unordered_map<std::string, LiveInfo>;

struct LiveProbeResult {
  SesionesVivas vivas;
  std::vector<IndexError> errores;
  bool operator==(LiveProbeResult const&) const = default;
};

namespace LiveProbe {

/// Largest record that is read, in bytes; a larger one counts as unreadable.
inline constexpr std::size_t registroMaximo = 1UZ << 20U;

/// The folder of live-session records below the home directory `home`.
[[nodiscard]] std::string directorioPorOmision(std::string const& home);

/// Reads every "*.json" record in `directorio` and keeps those whose process exists. Never fails: problems
/// become notices with source `sessions`; a missing folder is no problem. Any thread.
[[nodiscard]] LiveProbeResult sondear(Archivos& archivos, VidaDeProcesos& procesos,
                                      std::string const& directorio);

}  // namespace LiveProbe
}  // namespace zorve
