#include "ZorveTui/EnPath.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zorve::tui {

namespace {

bool sePuedeCorrer(std::string const& ruta) {
  struct stat estado{};
  return ruta.starts_with('/') && ::stat(ruta.c_str(), &estado) == 0 && S_ISREG(estado.st_mode) &&
         ::access(ruta.c_str(), X_OK) == 0;
}

}  // namespace

std::string enPath(std::string_view path, std::string_view nombre) {
  while (!path.empty()) {
    auto const carpeta = path.substr(0, path.find(':'));
    path.remove_prefix(std::min(path.size(), carpeta.size() + 1));
    auto ruta = std::string{carpeta} + "/" + std::string{nombre};
    if (sePuedeCorrer(ruta)) return ruta;
  }
  return {};
}

std::string shellDeLaPersona(std::string const& variable) {
  if (sePuedeCorrer(variable)) return variable;
  passwd const* const cuenta = ::getpwuid(::getuid());  // NOLINT(concurrency-mt-unsafe): before other threads
  if (cuenta != nullptr && cuenta->pw_shell != nullptr && sePuedeCorrer(cuenta->pw_shell)) {
    return cuenta->pw_shell;
  }
  return "/bin/sh";
}

}  // namespace zorve::tui
