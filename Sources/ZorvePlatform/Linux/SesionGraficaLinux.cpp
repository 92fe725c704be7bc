#include "ZorvePlatform/Linux/SesionGraficaLinux.h"

#include <cstdlib>
#include <string>
#include <string_view>

namespace zorve {

namespace {

std::string_view valorDe(char const* nombre) {
  char const* const valor = std::getenv(nombre);  // NOLINT(concurrency-mt-unsafe): contract
  return valor != nullptr ? valor : "";
}

bool tieneValor(char const* nombre) { return !valorDe(nombre).empty(); }

/// The variable holds names between colons (Desktop Entry Specification, freedesktop.org).
bool esEscritorio(std::string_view nombre) {
  auto const todos = ":" + std::string{valorDe("XDG_CURRENT_DESKTOP")} + ":";
  return todos.contains(":" + std::string{nombre} + ":");
}

}  // namespace

SesionGrafica sesionGraficaDelProceso() {
  if (!tieneValor("WAYLAND_DISPLAY")) return tieneValor("DISPLAY") ? SesionGrafica::x11 : SesionGrafica::otra;
  if (tieneValor("SWAYSOCK")) return SesionGrafica::sway;
  return esEscritorio("KDE") ? SesionGrafica::kwin : SesionGrafica::otra;
}

}  // namespace zorve
