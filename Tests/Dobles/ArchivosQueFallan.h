#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "ZorveCore/Lectura/Archivos.h"

namespace zorve::dobles {

/// Files reached through others, where one call of them all, counted from 1, fails or has something done
/// before it. One thread at a time.
class ArchivosQueFallan final : public Archivos {
 public:
  enum class Llamada : std::uint8_t { ninguna, abrir, leer, tamano, atributos, listar, existe };

  /// With `codigo` 0 nothing fails.
  ArchivosQueFallan(Archivos& verdaderos, std::size_t cual, int codigo, std::function<void()> antes = {})
      : verdaderos_{verdaderos}, cual_{cual}, codigo_{codigo}, antes_{std::move(antes)} {}

  /// Which call it was that failed, and on what path; none where there were fewer calls.
  Llamada fallada = Llamada::ninguna;
  std::string rutaFallada;

  [[nodiscard]] std::size_t llamadas() const { return llamadas_; }

  [[nodiscard]] std::expected<std::unique_ptr<ArchivoAbierto>, FalloDelSistema> abrir(
      std::string const& ruta) override {
    if (toca(Llamada::abrir, ruta)) return std::unexpected{FalloDelSistema::deErrno(codigo_)};
    auto abierto = verdaderos_.abrir(ruta);
    if (!abierto) return abierto;
    return std::make_unique<Abierto>(*this, ruta, std::move(*abierto));
  }
  [[nodiscard]] std::expected<Atributos, FalloDelSistema> atributos(std::string const& ruta) override {
    if (toca(Llamada::atributos, ruta)) return std::unexpected{FalloDelSistema::deErrno(codigo_)};
    return verdaderos_.atributos(ruta);
  }
  [[nodiscard]] std::expected<std::vector<std::string>, FalloDelSistema> listar(
      std::string const& ruta) override {
    if (toca(Llamada::listar, ruta)) return std::unexpected{FalloDelSistema::deErrno(codigo_)};
    return verdaderos_.listar(ruta);
  }
  [[nodiscard]] bool existe(std::string const& ruta) override {
    return !toca(Llamada::existe, ruta) && verdaderos_.existe(ruta);
  }

 private:
  class Abierto final : public ArchivoAbierto {
   public:
    Abierto(ArchivosQueFallan& todos, std::string ruta, std::unique_ptr<ArchivoAbierto> verdadero)
        : todos_{todos}, ruta_{std::move(ruta)}, verdadero_{std::move(verdadero)} {}
    [[nodiscard]] std::expected<std::size_t, FalloDelSistema> leer(std::int64_t desde,
                                                                   std::span<char> destino) override {
      if (todos_.toca(Llamada::leer, ruta_)) return std::unexpected{FalloDelSistema::deErrno(todos_.codigo_)};
      return verdadero_->leer(desde, destino);
    }
    [[nodiscard]] std::expected<std::int64_t, FalloDelSistema> tamano() override {
      if (todos_.toca(Llamada::tamano, ruta_)) {
        return std::unexpected{FalloDelSistema::deErrno(todos_.codigo_)};
      }
      return verdadero_->tamano();
    }

   private:
    ArchivosQueFallan& todos_;
    std::string ruta_;
    std::unique_ptr<ArchivoAbierto> verdadero_;
  };

  bool toca(Llamada llamada, std::string const& ruta) {
    if (++llamadas_ != cual_) return false;
    if (antes_) antes_();
    if (codigo_ == 0) return false;
    fallada = llamada;
    rutaFallada = ruta;
    return true;
  }

  Archivos& verdaderos_;
  std::size_t cual_;
  int codigo_;
  std::function<void()> antes_;
  std::size_t llamadas_ = 0;
};

}  // namespace zorve::dobles
