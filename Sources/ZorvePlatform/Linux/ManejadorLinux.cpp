#include "ZorvePlatform/Linux/ManejadorLinux.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <utility>

#include "ZorveCore/CatalogoDeTerminales.h"
#include "ZorveCore/FichaDeTerminal.h"

namespace zorve {

namespace {

constexpr std::string_view envoltura = ".wrapper";

/// Scripts of the package xterm that start xterm with another character set.
constexpr std::array<std::string_view, 3> variantesDeXterm{"lxterm", "uxterm", "koi8rxterm"};

std::string_view nombreDelPrograma(std::string_view ruta) {
  ruta.remove_prefix(ruta.rfind('/') + 1);
  if (ruta.ends_with(envoltura)) ruta.remove_suffix(envoltura.size());
  return std::ranges::find(variantesDeXterm, ruta) == variantesDeXterm.end() ? ruta : "xterm";
}

}  // namespace

ManejadorLinux::ManejadorLinux(std::string enlace) : enlace_{std::move(enlace)} {}

std::optional<std::string> ManejadorLinux::aplicacionPara(std::string_view tipo) const {
  if (tipo != CatalogoDeTerminales::tipoDeGuionDeShell) return std::nullopt;
  std::error_code error;
  auto const destino = std::filesystem::read_symlink(enlace_, error);
  return error ? std::nullopt : terminalDelPrograma(destino.native());
}

std::optional<std::string> terminalDelPrograma(std::string_view ruta) {
  auto const nombre = nombreDelPrograma(ruta);
  for (auto const& ficha : fichasDeLinux()) {
    if (std::ranges::find(ficha.programas, nombre) != ficha.programas.end()) return ficha.identificador;
  }
  return std::nullopt;
}

}  // namespace zorve
