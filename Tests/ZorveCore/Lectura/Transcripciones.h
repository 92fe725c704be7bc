#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdint>
#include <string>
#include <vector>

#include "Dobles/CarpetaTemporal.h"
#include "ZorveCore/Lectura/TranscriptScanner.h"
#include "ZorvePlatform/Posix/ArchivosPosix.h"

namespace zorve {

/// A session's identifier, another for each `n`.
inline std::string uuid(std::size_t n) {
  auto const cola = std::to_string(n);
  return "0b5c7a1e-9f3d-4c2b-8a6e-" + std::string(12 - cola.size(), '0') + cola;
}

/// A transcript with a directory, "/p", and a title, "t".
inline std::string const contenido = R"({"type":"user","cwd":"/p"}
{"type":"ai-title","aiTitle":"t"}
)";

/// Sets the date of the entry itself, in seconds since 1970 and nanoseconds.
inline void fechar(std::string const& ruta, std::int64_t segundos, long nanosegundos = 0) {
  timespec const tiempos[] = {{segundos, nanosegundos}, {segundos, nanosegundos}};
  ASSERT_EQ(::utimensat(AT_FDCWD, ruta.c_str(), tiempos, AT_SYMLINK_NOFOLLOW), 0);
}

inline std::vector<std::string> identificadores(TranscriptScanner::Resultado const& resultado) {
  std::vector<std::string> ids;
  ids.reserve(resultado.transcripciones.size());
  for (auto const& t : resultado.transcripciones) ids.push_back(t.sessionId);
  return ids;
}

/// The part of a result that a failed comparison should show.
inline std::vector<std::string> mensajes(TranscriptScanner::Resultado const& resultado) {
  std::vector<std::string> textos;
  textos.reserve(resultado.errores.size());
  for (auto const& e : resultado.errores) textos.push_back(e.mensaje);
  return textos;
}

/// A folder of transcripts on the disk.
class TranscriptScannerTest : public testing::Test {
 protected:
  [[nodiscard]] TranscriptScanner::Resultado escaneo() { return TranscriptScanner::escanear(archivos, raiz); }
  std::string transcripcion(std::string const& slug, std::string const& id,
                            std::string const& texto = contenido) const {
    return carpeta.escribir("projects/" + slug + "/" + id + ".jsonl", texto);
  }
  [[nodiscard]] std::string rutaDe(std::string const& slug, std::string const& id) const {
    return raiz + "/" + slug + "/" + id + ".jsonl";
  }
  static IndexError error(std::string const& mensaje) { return {IndexSource::transcripts, mensaje}; }

  dobles::CarpetaTemporal carpeta;
  std::string raiz = carpeta.carpeta("projects");
  ArchivosPosix archivos;
};

}  // namespace zorve
