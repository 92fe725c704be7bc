#include "ZorveCore/Lectura/VentanaDeArchivo.h"

#include <algorithm>
#include <span>

namespace zorve {

namespace {

/// Titles and directories are usually found near the window's ends. Steps end at multiples of their length
/// in the file, so that no page of it is fetched for a few bytes only.
constexpr std::size_t muyCerca = 16'384;
constexpr std::size_t cerca = 49'152;
constexpr std::int64_t pasoCorto = 4'096;
constexpr std::int64_t pasoMedio = 8'192;
constexpr std::int64_t pasoLargoDelante = 32'768;
constexpr std::int64_t pasoLargoDetras = 262'144;
constexpr std::size_t capacidadUsual = 262'144 + RegistroJson::margen;

std::int64_t pasoTras(std::size_t leidos, std::int64_t pasoLargo) {
  if (leidos < muyCerca) return pasoCorto;
  return leidos < cerca ? pasoMedio : pasoLargo;
}

}  // namespace

void VentanaDeArchivo::reservar(std::size_t cuantos) {
  auto const pedida = std::max(cuantos + RegistroJson::margen, capacidadUsual);
  if (pedida != capacidad_) {
    memoria_.reset();
    memoria_.reset(new char[pedida]);
    capacidad_ = pedida;
  }
  datos_ = memoria_.get();
}

void VentanaDeArchivo::mirar(ArchivoAbierto& archivo, std::int64_t inicio, std::size_t largo) {
  reservar(largo);
  archivo_ = &archivo;
  inicio_ = inicio;
  largo_ = detras_ = largo;
  delante_ = 0;
}

void VentanaDeArchivo::mirar(std::string_view bloque) {
  archivo_ = nullptr;
  datos_ = bloque.data();
  largo_ = delante_ = bloque.size();
  detras_ = 0;
}

std::expected<bool, FalloDelSistema> VentanaDeArchivo::mirarCorto(ArchivoAbierto& archivo) {
  mirar(archivo, 0, deUnaVez + 1);
  if (auto const leido = leerEntera(); !leido) return std::unexpected{leido.error()};
  return largo_ <= deUnaVez;
}

VentanaDeArchivo::Paso VentanaDeArchivo::leerEntera() {
  auto const leidos = archivo_->leer(inicio_, std::span{memoria_.get(), largo_});
  if (!leidos) return std::unexpected{leidos.error()};
  largo_ = delante_ = *leidos;
  detras_ = 0;
  return {};
}

VentanaDeArchivo::Paso VentanaDeArchivo::leer(std::size_t desde, std::size_t hasta) {
  auto const leidos = archivo_->leer(inicio_ + static_cast<std::int64_t>(desde),
                                     std::span{memoria_.get() + desde, hasta - desde});
  if (!leidos) return std::unexpected{leidos.error()};
  if (*leidos < hasta - desde) return std::unexpected{FalloDelSistema{encogio, "The file became shorter"}};
  return {};
}

void VentanaDeArchivo::cerrarElHueco() {
  if (delante_ < detras_) return;
  delante_ = largo_;
  detras_ = 0;
}

VentanaDeArchivo::Paso VentanaDeArchivo::masDelante() {
  auto const paso = pasoTras(delante_, pasoLargoDelante);
  auto const lugar = inicio_ + static_cast<std::int64_t>(delante_);
  auto const hasta = std::min(static_cast<std::size_t>(lugar / paso * paso + paso - inicio_), detras_);
  auto const leido = leer(delante_, hasta);
  if (leido) delante_ = hasta;
  cerrarElHueco();
  return leido;
}

VentanaDeArchivo::Paso VentanaDeArchivo::masDetras() {
  auto const paso = pasoTras(largo_ - detras_, pasoLargoDetras);
  auto const lugar = inicio_ + static_cast<std::int64_t>(detras_);
  auto const desde = std::max((lugar - 1) / paso * paso - inicio_, static_cast<std::int64_t>(delante_));
  auto const leido = leer(static_cast<std::size_t>(desde), detras_);
  if (leido) detras_ = static_cast<std::size_t>(desde);
  cerrarElHueco();
  return leido;
}

}  // namespace zorve
