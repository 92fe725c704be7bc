#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ZorveCore/Lectura/Archivos.h"

namespace zorve::dobles {

/// A file system in memory for readers: absolute paths, folders above an entry are made with it, failures on
/// order. Every member may be called from any thread, also while files are open.
class ArchivosDeMemoria final : public Archivos {
 public:
  /// Fills a span with the bytes of a file from an offset on.
  using Generador = std::function<void(std::int64_t desde, std::span<char> destino)>;
  struct Lectura {
    std::string ruta;
    std::int64_t desde = 0;
    std::size_t pedidos = 0;
    bool operator==(Lectura const&) const = default;
  };

  ArchivosDeMemoria();
  ~ArchivosDeMemoria() override;

  /// Writes a file, or gives one that exists (and may be open) new bytes.
  void escribir(std::string const& ruta, std::string_view contenido, Fecha mtime = Fecha{});
  /// A file of `tamano` bytes that take no memory.
  void generar(std::string const& ruta, std::int64_t tamano, Generador bytes);
  void carpeta(std::string const& ruta);
  void enlazar(std::string const& ruta, std::string const& destino);
  /// A FIFO, socket or device.
  void especial(std::string const& ruta);
  /// Flags an entry as not to be shown, as macOS can.
  void ocultar(std::string const& ruta);
  /// Removes an entry; what is open stays readable.
  void quitar(std::string const& ruta);

  /// From now on the operation on exactly this path fails with an errno value; 0 takes that back.
  void fallarAlAbrir(std::string const& ruta, int codigo);
  /// What has no attributes does not exist either.
  void fallarAtributos(std::string const& ruta, int codigo);
  void fallarAlListar(std::string const& ruta, int codigo);
  void fallarTamano(std::string const& ruta, int codigo);
  /// The read number `cual` (from 1, counted over all openings of the path) and those behind it fail.
  void fallarLectura(std::string const& ruta, std::size_t cual, int codigo);
  /// A read gives at most so many bytes.
  void lecturasDeHasta(std::size_t bytes);
  /// Called before each read of the path with the read's number; it may change the file system.
  void antesDeLeer(std::string const& ruta, std::function<void(std::size_t cual)> hacer);

  /// Every path handed to `abrir`, in order, opened or not.
  [[nodiscard]] std::vector<std::string> abiertos() const;
  [[nodiscard]] std::vector<Lectura> lecturas() const;

  [[nodiscard]] std::expected<std::unique_ptr<ArchivoAbierto>, FalloDelSistema> abrir(
      std::string const& ruta) override;
  [[nodiscard]] std::expected<Atributos, FalloDelSistema> atributos(std::string const& ruta) override;
  [[nodiscard]] std::expected<std::vector<std::string>, FalloDelSistema> listar(
      std::string const& ruta) override;
  [[nodiscard]] bool existe(std::string const& ruta) override;

 private:
  struct Nodo;
  class Abierto;
  using PunteroANodo = std::shared_ptr<Nodo>;
  struct Fallos {
    int abrir = 0;
    int atributos = 0;
    int listar = 0;
    int tamano = 0;
    int lectura = 0;
    std::size_t cualLectura = 0;
    std::size_t lecturasHechas = 0;
    std::function<void(std::size_t)> antesDeLeer;
  };

  Nodo& poner(std::string const& ruta, ClaseDeArchivo clase);
  [[nodiscard]] std::expected<std::string, int> resolver(std::string const& ruta, bool seguirElUltimo) const;
  [[nodiscard]] std::expected<std::size_t, FalloDelSistema> leer(std::string const& ruta, Nodo const& nodo,
                                                                 std::int64_t desde, std::span<char> destino);
  [[nodiscard]] std::expected<std::int64_t, FalloDelSistema> tamanoDe(std::string const& ruta,
                                                                      Nodo const& nodo);

  mutable std::mutex mutex_;
  std::map<std::string, PunteroANodo> nodos_;
  std::map<std::string, Fallos> fallos_;
  std::size_t maximoPorLectura_ = std::numeric_limits<std::size_t>::max();
  std::vector<std::string> abiertos_;
  std::vector<Lectura> lecturas_;
};

}  // namespace zorve::dobles
