#pragma once

#include <cstddef>
#include <cstdint>
#include <expected>
#include <vector>

#include "ZorveCore/Lectura/Archivos.h"
#include "ZorveCore/Lectura/RegistroJson.h"

namespace zorve {

/// The lines of a file, in order, each without its line feed. What stands behind the last line feed is a line
/// too unless it is empty. Holds one partial line and one read at most. One thread at a time.
class Lineas {
 public:
  /// Bytes asked for with one read.
  static constexpr std::size_t paso = std::size_t{64} << 10U;

  struct Linea {
    /// Valid until the next call; empty when the line is too long.
    ConMargen bytes;
    /// Only blanks, tabs, carriage returns or nothing, however long the line is.
    bool enBlanco = false;
    /// Longer than the limit: its bytes were dropped.
    bool demasiadoLarga = false;
  };

  /// Reads `archivo`, which outlives this object, from its start. `largoMaximo` in bytes.
  Lineas(ArchivoAbierto& archivo, std::size_t largoMaximo);

  /// Gives the next line, or false behind the last one. Fails with the failure of a read.
  [[nodiscard]] std::expected<bool, FalloDelSistema> siguiente(Linea& linea);

 private:
  [[nodiscard]] std::expected<void, FalloDelSistema> leerMas();
  void hacerSitio();
  void soltarLoDeMas();
  void entregar(std::size_t fin, Linea& linea);

  ArchivoAbierto& archivo_;
  std::size_t largoMaximo_;
  std::vector<char> bufer_;
  std::size_t inicio_ = 0;
  std::size_t buscado_ = 0;
  std::size_t fin_ = 0;
  std::int64_t leidos_ = 0;
  bool alFinal_ = false;
  bool soltando_ = false;
  bool soltadoEnBlanco_ = true;
};

}  // namespace zorve
