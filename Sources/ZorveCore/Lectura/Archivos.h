#pragma once

#include <cstddef>
#include <cstdint>
#include <expected>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "ZorveCore/FalloDelSistema.h"
#include "ZorveCore/Modelo.h"

namespace zorve {

enum class ClaseDeArchivo : std::uint8_t { regular, carpeta, enlace, otra };

/// What the file system says of an entry itself; links are not followed. Size in bytes.
struct Atributos {
  ClaseDeArchivo clase = ClaseDeArchivo::otra;
  std::int64_t tamanoBytes = 0;
  Fecha mtime{};
  /// Flagged as not to be shown, as macOS's files may be (UF_HIDDEN, chflags(2)), whatever the name.
  bool oculto = false;
  bool operator==(Atributos const&) const = default;
};

/// An open regular file. It closes with the object; a failure to close is ignored.
class ArchivoAbierto {
 public:
  ArchivoAbierto() = default;
  ArchivoAbierto(ArchivoAbierto const&) = delete;
  ArchivoAbierto& operator=(ArchivoAbierto const&) = delete;
  virtual ~ArchivoAbierto() = default;

  /// Reads up to `destino.size()` bytes at `desde` (bytes from the start) and gives how many came: fewer than
  /// asked for only at the end of the file, 0 at or behind it. Interrupted reads go on.
  [[nodiscard]] virtual std::expected<std::size_t, FalloDelSistema> leer(std::int64_t desde,
                                                                         std::span<char> destino) = 0;
  /// The size in bytes at this moment.
  [[nodiscard]] virtual std::expected<std::int64_t, FalloDelSistema> tamano() = 0;
};

/// The way to files, for readers. Every operation may be called from any thread, several at once.
class Archivos {
 public:
  Archivos() = default;
  Archivos(Archivos const&) = delete;
  Archivos& operator=(Archivos const&) = delete;
  virtual ~Archivos() = default;

  /// Opens a regular file for reading; links are followed. Anything else (a folder, FIFO, socket, device)
  /// fails at once and is never waited for.
  [[nodiscard]] virtual std::expected<std::unique_ptr<ArchivoAbierto>, FalloDelSistema> abrir(
      std::string const& ruta) = 0;
  [[nodiscard]] virtual std::expected<Atributos, FalloDelSistema> atributos(std::string const& ruta) = 0;
  /// The names in a folder, hidden ones too, "." and ".." left out, in the order the file system gives them.
  [[nodiscard]] virtual std::expected<std::vector<std::string>, FalloDelSistema> listar(
      std::string const& ruta) = 0;
  /// Whether the system finds something at `ruta`, links followed. What it cannot look at (a loop of links, a
  /// name too long, a closed folder on the way) is not there.
  [[nodiscard]] virtual bool existe(std::string const& ruta) = 0;
};

/// What follows the last slash of `ruta`: all of it where there is none.
[[nodiscard]] std::string_view nombreBase(std::string_view ruta);

/// `carpeta` and `nombre` with one slash between them.
[[nodiscard]] std::string unirRuta(std::string const& carpeta, std::string const& nombre);

}  // namespace zorve
