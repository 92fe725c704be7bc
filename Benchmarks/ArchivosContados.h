#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "ZorveCore/Lectura/Archivos.h"

namespace zorve::medir {

/// Counts the bytes that are read from files over 64 KiB.
class ArchivosContados final : public Archivos {
 public:
  explicit ArchivosContados(Archivos& verdaderos) : verdaderos_{verdaderos} {}

  [[nodiscard]] std::uint64_t bytesDeLargos() const { return bytes_; }

  [[nodiscard]] std::expected<std::unique_ptr<ArchivoAbierto>, FalloDelSistema> abrir(
      std::string const& ruta) override {
    auto abierto = verdaderos_.abrir(ruta);
    if (!abierto) return abierto;
    auto const tamano = (*abierto)->tamano();
    if (!tamano || *tamano <= 65'536) return abierto;
    return std::make_unique<Contado>(std::move(*abierto), bytes_);
  }
  [[nodiscard]] std::expected<Atributos, FalloDelSistema> atributos(std::string const& ruta) override {
    return verdaderos_.atributos(ruta);
  }
  [[nodiscard]] std::expected<std::vector<std::string>, FalloDelSistema> listar(
      std::string const& ruta) override {
    return verdaderos_.listar(ruta);
  }
  [[nodiscard]] bool existe(std::string const& ruta) override { return verdaderos_.existe(ruta); }

 private:
  class Contado final : public ArchivoAbierto {
   public:
    Contado(std::unique_ptr<ArchivoAbierto> abierto, std::atomic<std::uint64_t>& bytes)
        : abierto_{std::move(abierto)}, bytes_{bytes} {}
    [[nodiscard]] std::expected<std::size_t, FalloDelSistema> leer(std::int64_t desde,
                                                                   std::span<char> destino) override {
      auto leidos = abierto_->leer(desde, destino);
      if (leidos) bytes_ += *leidos;
      return leidos;
    }
    [[nodiscard]] std::expected<std::int64_t, FalloDelSistema> tamano() override {
      return abierto_->tamano();
    }

   private:
    std::unique_ptr<ArchivoAbierto> abierto_;
    std::atomic<std::uint64_t>& bytes_;
  };

  Archivos& verdaderos_;
  std::atomic<std::uint64_t> bytes_{0};
};

}  // namespace zorve::medir
