#pragma once

#include <chrono>
#include <cstdint>
#include <expected>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "ZorveCore/Lectura/Archivos.h"
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

/// `errores` holds nothing, or one error that sums up the unreadable lines, and one where reading was cut
/// short.
struct HistoryResult {
  EntradasDeHistoria entradas;
  std::int64_t lineasIlegibles = 0;
  std::vector<IndexError> errores;
  bool operator==(HistoryResult const&) const = default;
};

namespace HistoryStore {

/// Longest line that is decoded, in bytes; a longer one counts as unreadable.
inline constexpr std::size_t largoMaximoDeLinea = 4UZ << 20U;

/// What of a history is wanted, and how much of it is read at most.
struct Encargo {
  using Reloj = std::chrono::steady_clock;

  /// Whether a session gets an entry; where it is empty, each does. The lines of the others count too.
  std::function<bool(std::string const& sessionId)> interesa{};
  std::int64_t bytes = 4LL << 30U;
  std::chrono::seconds plazo{30};
  std::function<Reloj::time_point()> ahora = Reloj::now;
};

/// Folds the prompt history at `ruta` (JSON lines) into one entry a session, reading in steps of 64 KiB. What
/// lies behind the bounds of `encargo` is left out, and one error more says so. Fails with source `history`
/// when the file is missing, cannot be opened or a read fails. Any thread.
[[nodiscard]] std::expected<HistoryResult, IndexError> cargar(Archivos& archivos, std::string const& ruta,
                                                              Encargo const& encargo = {});

}  // namespace HistoryStore
}  // namespace zorve
