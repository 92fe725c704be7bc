#include "ZorveCore/Lectura/Lineas.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace zorve {

namespace {

bool todoEnBlanco(std::string_view bytes) {
  return bytes.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

}  // namespace

Lineas::Lineas(ArchivoAbierto& archivo, std::size_t largoMaximo)
    : archivo_{archivo}, largoMaximo_{largoMaximo}, bufer_(2 * paso + RegistroJson::margen) {}

std::expected<bool, FalloDelSistema> Lineas::siguiente(Linea& linea) {
  for (;;) {
    auto const* const desde = bufer_.data() + buscado_;
    if (auto const* const salto = static_cast<char const*>(std::memchr(desde, '\n', fin_ - buscado_))) {
      entregar(static_cast<std::size_t>(salto - bufer_.data()), linea);
      ++inicio_;
      buscado_ = inicio_;
      return true;
    }
    buscado_ = fin_;
    soltarLoDeMas();
    if (alFinal_) break;
    if (auto const leido = leerMas(); !leido) return std::unexpected{leido.error()};
  }
  if (inicio_ == fin_ && !soltando_) return false;
  entregar(fin_, linea);
  return true;
}

std::expected<void, FalloDelSistema> Lineas::leerMas() {
  hacerSitio();
  auto const llegaron = archivo_.leer(leidos_, {bufer_.data() + fin_, paso});
  if (!llegaron) return std::unexpected{llegaron.error()};
  alFinal_ = *llegaron == 0;
  fin_ += *llegaron;
  leidos_ += static_cast<std::int64_t>(*llegaron);
  return {};
}

void Lineas::hacerSitio() {
  auto const parcial = fin_ - inicio_;
  if (inicio_ > 0) std::memmove(bufer_.data(), bufer_.data() + inicio_, parcial);
  inicio_ = 0;
  buscado_ = fin_ = parcial;
  auto const necesario = fin_ + paso + RegistroJson::margen;
  if (necesario <= bufer_.size()) return;
  auto const tope = std::max(necesario, largoMaximo_ + paso + RegistroJson::margen);
  bufer_.resize(std::min(2 * bufer_.size(), tope));
}

void Lineas::soltarLoDeMas() {
  if (!soltando_ && fin_ - inicio_ <= largoMaximo_) return;
  soltadoEnBlanco_ = soltadoEnBlanco_ && todoEnBlanco({bufer_.data() + inicio_, fin_ - inicio_});
  soltando_ = true;
  inicio_ = buscado_ = fin_ = 0;
}

void Lineas::entregar(std::size_t fin, Linea& linea) {
  auto const largo = fin - inicio_;
  linea.bytes = {bufer_.data() + inicio_, largo};
  linea.enBlanco = soltadoEnBlanco_ && todoEnBlanco(linea.bytes.texto());
  linea.demasiadoLarga = soltando_ || largo > largoMaximo_;
  if (linea.demasiadoLarga) linea.bytes.largo = 0;
  inicio_ = buscado_ = fin;
  soltando_ = false;
  soltadoEnBlanco_ = true;
}

}  // namespace zorve
