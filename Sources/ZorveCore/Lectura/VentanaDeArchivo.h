#pragma once

#include <cstddef>
#include <cstdint>
#include <expected>
#include <memory>
#include <string_view>

#include "ZorveCore/Lectura/Archivos.h"
#include "ZorveCore/Lectura/RegistroJson.h"

namespace zorve {

/// A stretch of a file that is read as it is asked for, from its start forwards and from its end backwards,
/// no byte twice. The memory is kept from one stretch to the next. One thread at a time.
class VentanaDeArchivo {
 public:
  /// How a read fails when the file has become shorter under it. `leerEntera` goes on from there.
  static constexpr int encogio = -1;
  /// A file of at most so many bytes is read in one go.
  static constexpr std::size_t deUnaVez = 65'536;

  using Paso = std::expected<void, FalloDelSistema>;

  /// Looks at `largo` bytes from `inicio` on; nothing is read yet. `archivo` outlives the use.
  void mirar(ArchivoAbierto& archivo, std::int64_t inicio, std::size_t largo);
  /// Looks at bytes in memory, which outlive the use.
  void mirar(std::string_view bloque);
  /// Looks at a whole file of at most `deUnaVez` bytes, read at once. Gives false when it is longer.
  [[nodiscard]] std::expected<bool, FalloDelSistema> mirarCorto(ArchivoAbierto& archivo);
  /// Reads the whole stretch in one go; where the file ends before, the stretch does too.
  [[nodiscard]] Paso leerEntera();

  [[nodiscard]] std::size_t largo() const { return largo_; }
  /// So many bytes have been read from the start.
  [[nodiscard]] std::size_t delante() const { return delante_; }
  /// From here to the end all has been read.
  [[nodiscard]] std::size_t detras() const { return detras_; }
  [[nodiscard]] Paso masDelante();
  [[nodiscard]] Paso masDetras();

  /// Bytes that have been read.
  [[nodiscard]] std::string_view trozo(std::size_t desde, std::size_t hasta) const {
    return {datos_ + desde, hasta - desde};
  }
  /// So many bytes may be read behind the stretch's end.
  [[nodiscard]] std::size_t margen() const { return archivo_ == nullptr ? 0 : RegistroJson::margen; }

 private:
  [[nodiscard]] Paso leer(std::size_t desde, std::size_t hasta);
  void reservar(std::size_t cuantos);
  void cerrarElHueco();

  ArchivoAbierto* archivo_ = nullptr;
  std::int64_t inicio_ = 0;
  std::unique_ptr<char[]> memoria_;
  std::size_t capacidad_ = 0;
  char const* datos_ = nullptr;
  std::size_t largo_ = 0;
  std::size_t delante_ = 0;
  std::size_t detras_ = 0;
};

}  // namespace zorve
