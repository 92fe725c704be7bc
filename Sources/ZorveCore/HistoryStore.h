#pragma once

#include <cstdint>
#include <expected>
#include <string>
#include <unordered_map>
#include <vector>

#include "ZorveCore/Archivos.h"
#include "ZorveCore/Modelo.h"

namespace zorve {

/// What the prompt history knows of one session.
struct HistoryEntry {
  std::string sessionId;
  std::string cwd;
  std::string primerPrompt;
  std::string ultimoPrompt;
  std::int64_t conteo = 0;
  Fecha primerTimestamp{};
  Fecha ultimoTimestamp{};
  bool operator==(HistoryEntry const&) const = default;
};

/// Entries keyed by their `sessionId`.
using EntradasDeHistoria = std::unordered_map<std::string, HistoryEntry>;

/// `errores` holds nothing, or one error that sums up the unreadable lines.
struct HistoryResult {
  EntradasDeHistoria entradas;
  std::int64_t lineasIlegibles = 0;
  std::vector<IndexError> errores;
  bool operator==(HistoryResult const&) const = default;
};

namespace HistoryStore {

/// Longest line that is decoded, in bytes; a longer one counts as unreadable.
inline constexpr std::size_t largoMaximoDeLinea = 64UZ << 20U;

/// Folds the prompt history at `ruta` (JSON lines) into one entry a session, reading in steps of 64 KiB.
/// Fails with source `history` when the file is missing, cannot be opened or a read fails. Any thread.
[[nodiscard]] std::expected<HistoryResult, IndexError> cargar(Archivos& archivos, std::string const& ruta);

}  // namespace HistoryStore
}  // namespace zorve
