#include "ZorvePlatform/Linux/SesionGraficaLinux.h"

#include <cstdlib>

namespace zorve {

namespace {

bool tieneValor(char const* nombre) {
  char const* valor = std::getenv(nombre);  // NOLINT(concurrency-mt-unsafe): contract
  return valor != nullptr && *valor != '\0';
}

}  // namespace

SesionGrafica sesionGraficaDelProceso() {
  if (tieneValor("SWAYSOCK") && tieneValor("WAYLAND_DISPLAY")) return SesionGrafica::sway;
  return tieneValor("DISPLAY") && !tieneValor("WAYLAND_DISPLAY") ? SesionGrafica::x11 : SesionGrafica::otra;
}

}  // namespace zorve
