#include "ZorvePlatform/Linux/SesionGraficaLinux.h"

#include <string>
#include <string_view>

#include "ZorvePlatform/Posix/Variable.h"

namespace zorve {

namespace {

bool tieneValor(char const* nombre) { return !variable(nombre).empty(); }

/// The variable holds names between colons (Desktop Entry Specification, freedesktop.org).
bool esEscritorio(std::string_view nombre) {
  auto const todos = ":" + variable("XDG_CURRENT_DESKTOP") + ":";
  return todos.contains(":" + std::string{nombre} + ":");
}

}  // namespace

SesionGrafica sesionGraficaDelProceso() {
  if (!tieneValor("WAYLAND_DISPLAY")) return tieneValor("DISPLAY") ? SesionGrafica::x11 : SesionGrafica::otra;
  if (tieneValor("SWAYSOCK")) return SesionGrafica::sway;
  if (esEscritorio("KDE")) return SesionGrafica::kwin;
  return esEscritorio("GNOME") ? SesionGrafica::gnome : SesionGrafica::otra;
}

}  // namespace zorve
