#pragma once

#include <cstdint>
#include <expected>
#include <optional>
#include <string>
#include <string_view>

#include "ZorveCore/RegistroJson.h"
#include "ZorveCore/TranscriptScanner.h"
#include "ZorveCore/Ventana.h"

namespace zorve {

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

  [[nodiscard]] Ventana::Paso mirarLaCola(ArchivoAbierto& archivo, std::int64_t inicio,
                                          std::int64_t tamanoBytes);
  [[nodiscard]] Ventana::Paso completar(TranscriptScanner::Cabecera& cabecera);
  [[nodiscard]] Hallazgo buscar(Busqueda busqueda);
  [[nodiscard]] Hallazgo tituloDesdeElFin();
  [[nodiscard]] Hallazgo directorioDesdeElInicio();
  [[nodiscard]] PiezaHallada piezaHaciaAtras(std::size_t lugar);
  [[nodiscard]] PiezaHallada piezaHaciaDelante(std::size_t lugar, std::size_t desde);
  [[nodiscard]] Texto tituloDe(Pieza pieza);
  [[nodiscard]] Texto directorioDe(Pieza pieza);
  [[nodiscard]] ConMargen conMargen(Pieza pieza);

  Ventana ventana_;
  RegistroJson registro_;
  std::string copia_;
};

}  // namespace zorve
