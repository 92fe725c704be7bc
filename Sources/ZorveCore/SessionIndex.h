#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "ZorveCore/HistoryStore.h"
#include "ZorveCore/LiveProbe.h"
#include "ZorveCore/Modelo.h"
#include "ZorveCore/TranscriptScanner.h"

namespace zorve {

/// Where the agent leaves its files. Absolute paths; `home` is the user's home directory.
struct Ubicaciones {
  std::string home;
  std::string history;
  std::string transcripciones;
  std::string sesionesVivas;
  bool operator==(Ubicaciones const&) const = default;
};

namespace SessionIndex {

/// Longest title made from a first prompt, in user-perceived characters, before it is cut.
inline constexpr std::size_t largoDelTitulo = 80;

[[nodiscard]] std::string raizDeClaude(std::string const& home);
[[nodiscard]] std::string historyPorDefecto(std::string const& home);

/// The default locations below `home`.
[[nodiscard]] Ubicaciones ubicacionesPorDefecto(std::string const& home);

/// Reads the three sources and merges them. Never fails: every problem becomes a notice, in the order
/// history, transcripts, live sessions, merge. With no session and no ".claude" folder in the home directory
/// the one notice says so and the others are dropped. Any thread, never the main one.
[[nodiscard]] IndexResult construir(Archivos& archivos, VidaDeProcesos& procesos, Ubicaciones const& donde);

/// The merge alone: sessions by last activity, newest first, and at most one notice. Touches no file.
[[nodiscard]] IndexResult ensamblar(std::span<Transcript const> transcripciones,
                                    EntradasDeHistoria const& history, SesionesVivas const& vivas);

}  // namespace SessionIndex
}  // namespace zorve
