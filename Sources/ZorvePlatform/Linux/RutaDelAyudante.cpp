#include "ZorvePlatform/Linux/RutaDelAyudante.h"

#include <unistd.h>

#include <filesystem>

namespace zorve {

std::string rutaDelAyudanteDesde(std::string const& carpeta) {
  std::filesystem::path const base{carpeta};
  auto const alLado = base / "zorve-terminal";
  if (::access(alLado.c_str(), X_OK) == 0) return alLado.string();
  return (base.parent_path() / "libexec/zorve/zorve-terminal").string();
}

std::string rutaDelAyudante() {
  std::error_code error;
  auto const propia = std::filesystem::read_symlink("/proc/self/exe", error);
  return rutaDelAyudanteDesde(propia.parent_path().string());
}

}  // namespace zorve
