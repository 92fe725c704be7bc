#include "ZorveCore/Texto/Presentacion.h"

#include <algorithm>
#include <cstdint>

namespace zorve {

namespace {

std::string unidades(double segundos, double porUnidad, char unidad) {
  constexpr double maximo = 9e18;
  return std::to_string(static_cast<std::int64_t>(std::min(segundos / porUnidad, maximo))) + unidad;
}

/// How many bytes at the start of `ruta` are written "~".
std::size_t bytesDelHome(std::string_view ruta, std::string_view home) {
  bool const bajoHome =
      !home.empty() && ruta.starts_with(home) && (ruta.size() == home.size() || ruta[home.size()] == '/');
  return bajoHome ? home.size() : 0;
}

}  // namespace

std::string relativo(Fecha fecha, Fecha ahora, std::string_view palabraAhora) {
  constexpr double minuto = 60;
  constexpr double hora = 3600;
  constexpr double dia = 86400;
  double const intervalo = (ahora - fecha).count();
  if (!(intervalo >= minuto)) return std::string{palabraAhora};
  if (intervalo < hora) return unidades(intervalo, minuto, 'm');
  if (intervalo < dia) return unidades(intervalo, hora, 'h');
  return unidades(intervalo, dia, 'd');
}

std::string abreviar(std::string_view ruta, std::string_view home) {
  auto const suyos = bytesDelHome(ruta, home);
  return (suyos > 0 ? "~" : "") + std::string{ruta.substr(suyos)};
}

std::vector<Tramo> enLoAbreviado(std::vector<Tramo> tramos, std::string_view ruta, std::string_view home) {
  auto const suyos = bytesDelHome(ruta, home);
  if (suyos == 0) return tramos;
  std::vector<Tramo> abreviados;
  for (auto const& [desde, hasta] : tramos) {
    Tramo const nuevo{desde < suyos ? 0 : desde - suyos + 1, hasta <= suyos ? 1 : hasta - suyos + 1};
    bool const sigue = !abreviados.empty() && nuevo.desde <= abreviados.back().hasta;
    if (sigue) {
      abreviados.back().hasta = nuevo.hasta;
    } else {
      abreviados.push_back(nuevo);
    }
  }
  return abreviados;
}

}  // namespace zorve
