#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ZorveCore/Enumeracion.h"

namespace zorve {

/// A point in time: seconds since 1970-01-01 UTC, fractions kept.
using Fecha = std::chrono::time_point<std::chrono::system_clock, std::chrono::duration<double>>;

enum class SessionKind : std::uint8_t { claude };

/// `dead`: no running process of the session is known.
enum class LiveState : std::uint8_t { dead, idle, busy };

/// Where a session's title came from: its own ai-title record, or made here from the first prompt or the
/// folder.
enum class TitleSource : std::uint8_t { aiTitle, derivedFromFirstPrompt };

/// Where an `IndexError` came from.
enum class IndexSource : std::uint8_t { history, transcripts, sessions, launcher };

template <>
struct Casos<SessionKind> {
  static constexpr std::array<std::pair<SessionKind, std::string_view>, 1> tabla{
      {{SessionKind::claude, "claude"}}};
};

template <>
struct Casos<LiveState> {
  static constexpr std::array<std::pair<LiveState, std::string_view>, 3> tabla{
      {{LiveState::dead, "dead"}, {LiveState::idle, "idle"}, {LiveState::busy, "busy"}}};
};

template <>
struct Casos<TitleSource> {
  static constexpr std::array<std::pair<TitleSource, std::string_view>, 2> tabla{
      {{TitleSource::aiTitle, "aiTitle"}, {TitleSource::derivedFromFirstPrompt, "derivedFromFirstPrompt"}}};
};

template <>
struct Casos<IndexSource> {
  static constexpr std::array<std::pair<IndexSource, std::string_view>, 4> tabla{
      {{IndexSource::history, "history"},
       {IndexSource::transcripts, "transcripts"},
       {IndexSource::sessions, "sessions"},
       {IndexSource::launcher, "launcher"}}};
};

/// One listed session.
struct Session {
  std::string titulo;
  TitleSource tituloOrigen = TitleSource::derivedFromFirstPrompt;
  std::string cwd;
  SessionKind kind = SessionKind::claude;
  LiveState liveState = LiveState::dead;
  Fecha ultimaActividad{};
  std::optional<std::int64_t> conteoPrompts;
  std::optional<std::string> ultimoPrompt;
  std::optional<std::string> sessionId;
  std::optional<std::int32_t> pid;

  /// "claude:" and the identifier, or the directory where there is no identifier.
  [[nodiscard]] std::string id() const;
  bool operator==(Session const&) const = default;
};

/// A failure or a notice: the source and the full English message.
struct IndexError {
  IndexSource fuente = IndexSource::history;
  std::string mensaje;

  /// The raw text of the source, "|", the message.
  [[nodiscard]] std::string id() const;
  bool operator==(IndexError const&) const = default;
};

/// The outcome of one index run: sessions in display order, notices in the order they were met.
struct IndexResult {
  std::vector<Session> sesiones;
  std::vector<IndexError> errores;
  bool operator==(IndexResult const&) const = default;
};

}  // namespace zorve
