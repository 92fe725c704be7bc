#include "ZorvePlatform/Linux/BuscarPrograma.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>

#include "ZorvePlatform/Posix/ArchivosPosix.h"

namespace zorve {

namespace {

constexpr std::size_t maximoDeEntrada = 256UL * 1024;

void agregar(std::vector<std::string>& lista, std::string const& carpeta) {
  if (carpeta.starts_with('/') && std::ranges::find(lista, carpeta) == lista.end()) lista.push_back(carpeta);
}

void agregarLista(std::vector<std::string>& lista, std::string_view texto, std::string const& detras) {
  while (!texto.empty()) {
    auto const fin = std::min(texto.find(':'), texto.size());
    agregar(lista, std::string{texto.substr(0, fin)} + detras);
    texto.remove_prefix(std::min(fin + 1, texto.size()));
  }
}

bool esEjecutable(std::string const& ruta) {
  struct stat estado{};
  return ::stat(ruta.c_str(), &estado) == 0 && S_ISREG(estado.st_mode) && ::access(ruta.c_str(), X_OK) == 0;
}

std::string leerEntrada(std::string const& ruta) {
  ArchivosPosix archivos;
  auto const archivo = archivos.abrir(ruta);
  if (!archivo) return {};
  std::string texto(maximoDeEntrada, '\0');
  auto const leidos = (*archivo)->leer(0, texto);
  texto.resize(leidos.value_or(0));
  return texto;
}

/// The first word of the value of `clave` in the entry's first group.
std::string primeraPalabra(std::string_view entrada, std::string_view clave) {
  bool enGrupo = false;
  while (!entrada.empty()) {
    auto const fin = std::min(entrada.find('\n'), entrada.size());
    auto linea = entrada.substr(0, fin);
    entrada.remove_prefix(std::min(fin + 1, entrada.size()));
    if (linea.starts_with('[')) enGrupo = linea.starts_with("[Desktop Entry]");
    if (!enGrupo || !linea.starts_with(clave)) continue;
    linea.remove_prefix(clave.size());
    while (linea.starts_with(' ')) linea.remove_prefix(1);
    if (!linea.starts_with('=')) continue;
    linea.remove_prefix(1);
    while (linea.starts_with(' ') || linea.starts_with('"')) linea.remove_prefix(1);
    return std::string{linea.substr(0, linea.find_first_of(" \"\t\r"))};
  }
  return {};
}

}  // namespace

LugaresDeProgramas lugaresDeProgramas(std::function<std::string(std::string const&)> const& variable) {
  LugaresDeProgramas lugares;
  auto const casa = variable("HOME");
  agregarLista(lugares.carpetas, variable("PATH"), "");
  for (auto const* const carpeta : {"/.local/bin", "/bin", "/.nix-profile/bin"}) {
    agregar(lugares.carpetas, casa + carpeta);
  }
  for (auto const* const carpeta : {"/usr/local/bin", "/usr/bin", "/bin", "/snap/bin"}) {
    agregar(lugares.carpetas, carpeta);
  }
  auto const datos = variable("XDG_DATA_HOME");
  agregar(lugares.entradas, (datos.starts_with('/') ? datos : casa + "/.local/share") + "/applications");
  auto const comunes = variable("XDG_DATA_DIRS");
  agregarLista(lugares.entradas, comunes.empty() ? "/usr/local/share:/usr/share" : comunes, "/applications");
  return lugares;
}

std::optional<std::string> buscarPrograma(std::string_view nombre, LugaresDeProgramas const& lugares) {
  if (nombre.empty() || nombre.contains('/')) return std::nullopt;
  for (auto const& carpeta : lugares.carpetas) {
    auto ruta = carpeta + "/" + std::string{nombre};
    if (esEjecutable(ruta)) return ruta;
  }
  return std::nullopt;
}

std::optional<std::string> programaDeLaEntrada(std::string_view entrada, std::span<std::string const> nombres,
                                               LugaresDeProgramas const& lugares) {
  for (auto const& carpeta : lugares.entradas) {
    auto const texto = leerEntrada(carpeta + "/" + std::string{entrada});
    for (auto const* const clave : {"TryExec", "Exec"}) {
      auto ruta = primeraPalabra(texto, clave);
      auto const nombre = ruta.substr(ruta.rfind('/') + 1);
      if (!ruta.starts_with('/') || std::ranges::find(nombres, nombre) == nombres.end()) continue;
      if (esEjecutable(ruta)) return ruta;
    }
  }
  return std::nullopt;
}

}  // namespace zorve
