#pragma once

#include <cstdint>
#include <expected>
#include <optional>
#include <string>
#include <string_view>

#include "ZorveCore/Lectura/Archivos.h"
#include "ZorveCore/Lectura/RegistroJson.h"
#include "ZorveCore/Lectura/VentanaDeArchivo.h"

namespace zorve {

namespace TranscriptScanner {

/// Size of each window, in bytes.
inline constexpr std::int64_t ventanaBytes = 262'144;
/// A line is decoded for a directory only if it contains these bytes: a JSON key with its quotes.
inline constexpr std::string_view agujaCwd = "\"cwd\"";
/// A line is decoded for a title only if it contains these bytes: the bare key name.
inline constexpr std::string_view agujaAITitle = "aiTitle";
/// A tail that has grown since it was listed (a linked transcript's is the whole file) is looked at as far as
/// this from either end, in bytes.
inline constexpr std::int64_t colaMaxima = 16LL << 20U;
/// A longer line of a transcript is not decoded, in bytes. Longer than a window, so only a grown tail has it.
inline constexpr std::size_t registroMaximo = 2UZ << 20U;

/// What is read of a transcript.
struct Cabecera {
  std::optional<std::string> aiTitle;
  std::optional<std::string> cwd;
  bool operator==(Cabecera const&) const = default;
};

}  // namespace TranscriptScanner

/// Reads titles and directories of transcripts, one after the other, and keeps its memory in between: the
/// title is looked for from a window's end backwards, the directory from its start forwards, and no more is
/// read than that takes. What it finds is what reading both windows whole would find. One thread at a time.
class LectorDeCabeceras {
 public:
  /// See `TranscriptScanner::leerCabecera`.
  [[nodiscard]] std::expected<TranscriptScanner::Cabecera, FalloDelSistema> leer(Archivos& archivos,
                                                                                 std::string const& ruta,
                                                                                 std::int64_t tamanoBytes);
  [[nodiscard]] std::optional<std::string> titulo(std::string_view bloque);
  [[nodiscard]] std::optional<std::string> directorio(std::string_view bloque);

 private:
  using Texto = std::optional<std::string>;
  using Hallazgo = std::expected<Texto, FalloDelSistema>;
  using Busqueda = Hallazgo (LectorDeCabeceras::*)();
  struct Pieza {
    std::size_t desde = 0;
    std::size_t hasta = 0;
  };
  using PiezaHallada = std::expected<Pieza, FalloDelSistema>;

  [[nodiscard]] VentanaDeArchivo::Paso leerLaCola(TranscriptScanner::Cabecera& cabecera,
                                                  ArchivoAbierto& archivo, std::int64_t tamanoBytes);
  [[nodiscard]] VentanaDeArchivo::Paso leerLosExtremos(TranscriptScanner::Cabecera& cabecera,
                                                       ArchivoAbierto& archivo, std::int64_t inicio,
                                                       std::int64_t fin);
  [[nodiscard]] VentanaDeArchivo::Paso completarTitulo(TranscriptScanner::Cabecera& cabecera);
  [[nodiscard]] VentanaDeArchivo::Paso completarDirectorio(TranscriptScanner::Cabecera& cabecera);
  [[nodiscard]] VentanaDeArchivo::Paso completar(TranscriptScanner::Cabecera& cabecera);
  [[nodiscard]] Hallazgo buscar(Busqueda busqueda);
  [[nodiscard]] Hallazgo tituloDesdeElFin();
  [[nodiscard]] Hallazgo directorioDesdeElInicio();
  [[nodiscard]] PiezaHallada piezaHaciaAtras(std::size_t lugar);
  [[nodiscard]] PiezaHallada piezaHaciaDelante(std::size_t lugar, std::size_t desde);
  [[nodiscard]] Texto tituloDe(Pieza pieza);
  [[nodiscard]] Texto directorioDe(Pieza pieza);
  [[nodiscard]] ConMargen conMargen(Pieza pieza);

  VentanaDeArchivo ventana_;
  RegistroJson registro_;
  std::string copia_;
};

}  // namespace zorve
