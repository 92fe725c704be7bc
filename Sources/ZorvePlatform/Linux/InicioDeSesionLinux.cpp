#include "ZorvePlatform/Linux/InicioDeSesionLinux.h"

#include <sys/stat.h>

#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

#include "ZorveCore/Texto/Texto.h"
#include "ZorvePlatform/Posix/LeerArchivo.h"
#include "ZorvePlatform/Posix/ReemplazarArchivo.h"

namespace zorve {

namespace {

constexpr std::size_t topeDeEntrada = 64UZ * 1024;

std::string contenido(std::string const& ejecutable) {
  return "[Desktop Entry]\nType=Application\nName=Zorve\nExec=" + argumentoDeExec(ejecutable) +
         "\nIcon=com.sarnol.zorve\nTerminal=false\nX-GNOME-Autostart-enabled=true\n";
}

bool tieneLinea(std::string_view texto, std::string_view linea) {
  while (!texto.empty()) {
    if (sacarLinea(texto) == linea) return true;
  }
  return false;
}

/// Those that are missing, closed to others (XDG Base Directory Specification); 0, or an errno value.
int hacerCarpetas(std::filesystem::path const& carpeta) {
  std::error_code fallo;
  if (std::filesystem::is_directory(carpeta, fallo)) return 0;
  if (int const codigo = carpeta.has_relative_path() ? hacerCarpetas(carpeta.parent_path()) : 0;
      codigo != 0) {
    return codigo;
  }
  if (::mkdir(carpeta.c_str(), S_IRWXU) == 0) return 0;
  return errno == EEXIST ? ENOTDIR : errno;
}

}  // namespace

std::string argumentoDeExec(std::string const& ruta) {
  std::string texto = "\"";
  for (char const c : ruta) {
    if (c == '"' || c == '`' || c == '$') texto += "\\\\";
    if (c == '\\') texto += "\\\\\\";
    if (c == '%') texto += '%';
    texto += c;
  }
  return texto + '"';
}

InicioDeSesionLinux::InicioDeSesionLinux(EntornoLinux const& entorno, std::string ejecutable)
    : entrada_{entorno.configHome + "/autostart/com.sarnol.zorve.desktop"},
      ejecutable_{std::move(ejecutable)} {}

bool InicioDeSesionLinux::activo() const {
  auto const texto = leerArchivo(entrada_, topeDeEntrada);
  return texto && texto->find("\nExec=") != std::string::npos && !tieneLinea(*texto, "Hidden=true") &&
         !tieneLinea(*texto, "X-GNOME-Autostart-enabled=false");
}

std::expected<void, std::string> InicioDeSesionLinux::registrar() {
  auto const carpeta = std::filesystem::path{entrada_}.parent_path();
  if (int const codigo = hacerCarpetas(carpeta); codigo != 0) {
    return std::unexpected{carpeta.string() + ": " + FalloDelSistema::deErrno(codigo).descripcion};
  }
  auto const escrito = reemplazarArchivo(entrada_, contenido(ejecutable_));
  if (!escrito) return std::unexpected{entrada_ + ": " + escrito.error().descripcion};
  return {};
}

std::expected<void, std::string> InicioDeSesionLinux::retirar() {
  std::error_code fallo;
  std::filesystem::remove(entrada_, fallo);
  if (fallo) return std::unexpected{entrada_ + ": " + fallo.message()};
  return {};
}

}  // namespace zorve
