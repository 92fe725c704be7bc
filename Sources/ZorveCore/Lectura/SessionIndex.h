#pragma once

#include <string>

#include "ZorveCore/Lectura/Archivos.h"
#include "ZorveCore/Lectura/VidaDeProcesos.h"
#include "ZorveCore/Modelo.h"
#include "ZorveCore/VocesDelSistema.h"

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

[[nodiscard]] std::string raizDeClaude(std::string const& home);
[[nodiscard]] std::string historyPorDefecto(std::string const& home);

/// The default locations below `home`.
[[nodiscard]] Ubicaciones ubicacionesPorDefecto(std::string const& home);

/// Reads the three sources and merges them. Never fails: every problem becomes a notice, in the order
/// history, transcripts, live sessions, merge. With no session and no ".claude" folder in the home directory
/// the one notice says so, in the words of `voces`, and the others are dropped. Any thread, never the main
/// one.
[[nodiscard]] IndexResult construir(Archivos& archivos, VidaDeProcesos& procesos, Ubicaciones const& donde,
                                    VocesDelSistema const& voces = {});

}  // namespace SessionIndex
}  // namespace zorve
