#include "ZorveCore/Texto/Presentacion.h"

#include <algorithm>
#include <cstdint>

namespace zorve {

namespace {

std::string unidades(double segundos, double porUnidad, char unidad) {
  constexpr double maximo = 9e18;
  return std::to_string(static_cast<std::int64_t>(std::min(segundos / porUnidad, maximo))) + unidad;
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
  bool const bajoHome = !home.empty() && ruta.starts_with(home);
  auto const resto = ruta.substr(bajoHome ? home.size() : 0);
  if (!bajoHome || (!resto.empty() && resto.front() != '/')) return std::string{ruta};
  return "~" + std::string{resto};
}

}  // namespace zorve
