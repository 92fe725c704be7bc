#include "ZorvePlatform/Linux/RutaDelAyudante.h"

#include <filesystem>

#include "ZorvePlatform/Linux/EntornoLinux.h"
#include "ZorvePlatform/Posix/Propiedad.h"

namespace zorve {

std::string rutaDelAyudanteDesde(std::string const& carpeta) {
  std::filesystem::path const base{carpeta};
  for (auto const& ruta : {base / "zorve-terminal", base.parent_path() / "libexec/zorve/zorve-terminal"}) {
    if (esEjecutable(ruta.string()) && soloNuestra(ruta.string())) return ruta.string();
  }
  return "/usr/libexec/zorve/zorve-terminal";
}

std::string rutaDelAyudante() {
  std::error_code error;
  auto const propia = std::filesystem::read_symlink("/proc/self/exe", error);
  return rutaDelAyudanteDesde(propia.parent_path().string());
}

}  // namespace zorve
