#include "ZorvePlatform/Linux/EntornoLinux.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <string_view>
#include <utility>

#include "ZorveCore/Lectura/Archivos.h"
#include "ZorvePlatform/Posix/Variable.h"

namespace zorve {

namespace {

std::string absolutaO(std::string const& valor, std::string const& otra) {
  return valor.starts_with('/') ? valor : otra;
}

std::vector<std::string> absolutas(std::string_view lista) {
  std::vector<std::string> rutas;
  while (!lista.empty()) {
    auto const ruta = lista.substr(0, lista.find(':'));
    if (ruta.starts_with('/')) rutas.emplace_back(ruta);
    lista.remove_prefix(std::min(ruta.size() + 1, lista.size()));
  }
  return rutas;
}

std::vector<std::string> absolutasO(std::string const& lista, std::string_view otras) {
  return absolutas(lista.empty() ? otras : std::string_view{lista});
}

}  // namespace

bool esEjecutable(std::string const& ruta) {
  struct stat estado{};
  return ruta.starts_with('/') && !ruta.contains('\0') && ::stat(ruta.c_str(), &estado) == 0 &&
         S_ISREG(estado.st_mode) && ::faccessat(AT_FDCWD, ruta.c_str(), X_OK, AT_EACCESS) == 0;
}

EntornoLinux EntornoLinux::delProceso(std::string const& home) {
  EntornoLinux entorno;
  entorno.home = home;
  entorno.path = absolutasO(variable("PATH"), "/usr/local/bin:/usr/bin:/bin");
  if (home.starts_with('/')) entorno.path.push_back(unirRuta(home, ".local/bin"));
  entorno.configHome = absolutaO(variable("XDG_CONFIG_HOME"), unirRuta(home, ".config"));
  entorno.configDirs = absolutasO(variable("XDG_CONFIG_DIRS"), "/etc/xdg");
  entorno.datos = absolutasO(variable("XDG_DATA_DIRS"), "/usr/local/share:/usr/share");
  entorno.datos.insert(entorno.datos.begin(),
                       absolutaO(variable("XDG_DATA_HOME"), unirRuta(home, ".local/share")));
  return entorno;
}

std::string ejecutableEn(EntornoLinux const& entorno, std::string const& nombre) {
  if (nombre.empty()) return {};
  if (nombre.starts_with('/')) return esEjecutable(nombre) ? nombre : std::string{};
  if (nombre.contains('/')) return {};
  for (auto const& carpeta : entorno.path) {
    if (auto ruta = unirRuta(carpeta, nombre); esEjecutable(ruta)) return ruta;
  }
  return {};
}

}  // namespace zorve
