#pragma once

#include <cstddef>
#include <cstdint>
#include <expected>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ZorveCore/Lectura/Archivos.h"
#include "ZorveCore/Lectura/LectorDeCabeceras.h"
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

/// `transcripciones` newest first; every error has source `transcripts`.
struct Resultado {
  std::vector<Transcript> transcripciones;
  std::vector<IndexError> errores;
  bool operator==(Resultado const&) const = default;
};

/// The folder of transcripts below the home directory `home`.
[[nodiscard]] std::string raizPorDefecto(std::string const& home);

/// One scan of the folders below `raiz`, in steps that threads may share: one thread lists, any number then
/// reads, one gathers. The result does not depend on who reads what.
class Escaneo {
 public:
  /// Lists `raiz` and the folders in it. `archivos` outlives the scan.
  Escaneo(Archivos& archivos, std::string const& raiz);
  Escaneo(Escaneo const&) = delete;
  Escaneo& operator=(Escaneo const&) = delete;
  ~Escaneo();

  /// Whether a transcript of this session was listed. Any thread, while none calls `reunir`.
  [[nodiscard]] bool tiene(std::string const& sessionId) const;
  /// How many threads are worth having for what was listed.
  [[nodiscard]] std::size_t hilos() const;
  /// Reads files that no other thread has taken until none is left. Several threads may call it at once. A
  /// file for which memory does not suffice is listed with an error.
  void leer();
  /// What was found, once every call of `leer` has returned. Once only.
  [[nodiscard]] Resultado reunir();

 private:
  struct Interior;
  std::unique_ptr<Interior> interior_;
};

/// Finds every transcript one folder below `raiz`, files side by side on as many threads as there are
/// processors at most. Never fails as a whole. Any thread.
[[nodiscard]] Resultado escanear(Archivos& archivos, std::string const& raiz);

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
