#pragma once

#include <cstdint>
#include <expected>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ZorveCore/Archivos.h"
#include "ZorveCore/Modelo.h"

namespace zorve {

/// One transcript file. `sessionId` keeps its case as found, `slug` is the project folder's name.
struct Transcript {
  std::string sessionId;
  std::string ruta;
  std::string slug;
  Fecha mtime{};
  std::int64_t tamanoBytes = 0;
  std::optional<std::string> aiTitle;
  std::optional<std::string> cwd;
  bool operator==(Transcript const&) const = default;
};

namespace TranscriptScanner {

/// Size of each window, in bytes.
inline constexpr std::int64_t ventanaBytes = 262'144;
/// A line is decoded for a directory only if it contains these bytes: a JSON key with its quotes.
inline constexpr std::string_view agujaCwd = "\"cwd\"";
/// A line is decoded for a title only if it contains these bytes: the bare key name.
inline constexpr std::string_view agujaAITitle = "aiTitle";
/// Where reading a tail window of a growing file stops, in bytes.
inline constexpr std::int64_t colaMaxima = 16LL << 20U;

struct Cabecera {
  std::optional<std::string> aiTitle;
  std::optional<std::string> cwd;
  bool operator==(Cabecera const&) const = default;
};

/// `transcripciones` newest first; every error has source `transcripts`.
struct Resultado {
  std::vector<Transcript> transcripciones;
  std::vector<IndexError> errores;
  bool operator==(Resultado const&) const = default;
};

/// The folder of transcripts below the home directory `home`.
[[nodiscard]] std::string raizPorDefecto(std::string const& home);

/// Finds every transcript one folder below `raiz`. Files are looked at side by side, on as many threads as
/// there are processors at most; the result does not depend on their order. Never fails as a whole. Any
/// thread.
[[nodiscard]] Resultado escanear(Archivos& archivos, std::string const& raiz);

/// The same, with `aLaVez` as one more task among the files: it runs once, on one of their threads, whatever
/// `raiz` holds, and is done when this returns.
[[nodiscard]] Resultado escanear(Archivos& archivos, std::string const& raiz,
                                 std::function<void()> const& aLaVez);

/// The identifier in the file name of `ruta`: a 36-character UUID before ".jsonl", unchanged; else nothing.
[[nodiscard]] std::optional<std::string> sessionIdDeArchivo(std::string_view ruta);

/// The latest title and a directory from the last and, where something is missing, the first `ventanaBytes`
/// of a transcript of `tamanoBytes`. Fails with the file system's error. Any thread.
[[nodiscard]] std::expected<Cabecera, FalloDelSistema> leerCabecera(Archivos& archivos,
                                                                    std::string const& ruta,
                                                                    std::int64_t tamanoBytes);

/// The last title in a block of JSON lines. Lines cut at the block's edges simply fail to decode.
[[nodiscard]] std::optional<std::string> ultimoAITitle(std::string_view bloque);

/// The first absolute directory in a block of JSON lines, white space trimmed from both ends.
[[nodiscard]] std::optional<std::string> primerCwd(std::string_view bloque);

}  // namespace TranscriptScanner
}  // namespace zorve
