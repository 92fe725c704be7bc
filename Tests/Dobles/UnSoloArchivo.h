#pragma once

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <functional>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

#include "ZorveCore/Lectura/Archivos.h"

namespace zorve::dobles {

/// One file in memory under every path, which notes each read and may change under its reader.
class UnSoloArchivo final : public Archivos {
 public:
  struct Lectura {
    std::int64_t desde = 0;
    std::size_t cuantos = 0;
    bool operator==(Lectura const&) const = default;
  };

  explicit UnSoloArchivo(std::string inicial) : contenido{std::move(inicial)} {}

  std::string contenido;
  /// What was read so far: where from, and how many bytes came.
  std::vector<Lectura> lecturas;
  /// Called before each read with the number of reads so far; may change `contenido` and these failures.
  std::function<void(std::size_t)> alLeer;
  int falloAlAbrir = 0;
  int falloAlLeer = 0;
  int falloDelTamano = 0;

  [[nodiscard]] std::size_t bytesLeidos() const {
    return std::accumulate(lecturas.begin(), lecturas.end(), std::size_t{0},
                           [](std::size_t suma, Lectura const& una) { return suma + una.cuantos; });
  }

  [[nodiscard]] std::expected<std::unique_ptr<ArchivoAbierto>, FalloDelSistema> abrir(
      std::string const& /*ruta*/) override {
    if (falloAlAbrir != 0) return std::unexpected{FalloDelSistema::deErrno(falloAlAbrir)};
    return std::make_unique<Abierto>(*this);
  }
  [[nodiscard]] std::expected<Atributos, FalloDelSistema> atributos(std::string const& /*ruta*/) override {
    return Atributos{ClaseDeArchivo::regular, static_cast<std::int64_t>(contenido.size()), Fecha{}};
  }
  [[nodiscard]] std::expected<std::vector<std::string>, FalloDelSistema> listar(
      std::string const& /*ruta*/) override {
    return std::unexpected{FalloDelSistema::deErrno(ENOTDIR)};
  }
  [[nodiscard]] bool existe(std::string const& /*ruta*/) override { return true; }

 private:
  class Abierto final : public ArchivoAbierto {
   public:
    explicit Abierto(UnSoloArchivo& duenno) : duenno_{duenno} {}
    [[nodiscard]] std::expected<std::size_t, FalloDelSistema> leer(std::int64_t desde,
                                                                   std::span<char> destino) override {
      if (duenno_.alLeer) duenno_.alLeer(duenno_.lecturas.size());
      if (duenno_.falloAlLeer != 0) return std::unexpected{FalloDelSistema::deErrno(duenno_.falloAlLeer)};
      auto const lugar = std::min(static_cast<std::size_t>(desde), duenno_.contenido.size());
      auto const cuantos = duenno_.contenido.copy(destino.data(), destino.size(), lugar);
      duenno_.lecturas.push_back({desde, cuantos});
      return cuantos;
    }
    [[nodiscard]] std::expected<std::int64_t, FalloDelSistema> tamano() override {
      if (duenno_.falloDelTamano != 0) {
        return std::unexpected{FalloDelSistema::deErrno(duenno_.falloDelTamano)};
      }
      return static_cast<std::int64_t>(duenno_.contenido.size());
    }

   private:
    UnSoloArchivo& duenno_;
  };
};

}  // namespace zorve::dobles
