#include "ZorveTerminal/CarpetaDePaso.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "ZorvePlatform/Posix/Descriptor.h"
#include "ZorvePlatform/Posix/Flujo.h"
#include "ZorvePlatform/Posix/Propiedad.h"

namespace zorve::ayudante {

namespace {

constexpr char const* deTodos = "/tmp";

bool esLlana(std::string_view ruta) {
  return ruta.starts_with('/') && std::ranges::all_of(ruta, [](char letra) {
           return (letra >= 'a' && letra <= 'z') || (letra >= 'A' && letra <= 'Z') ||
                  (letra >= '0' && letra <= '9') || letra == '/' || letra == '-' || letra == '_' ||
                  letra == '.';
         });
}

/// Only root and this user write there; not even others in a sticky folder.
bool esPropia(std::string const& carpeta) {
  struct stat estado{};
  return ::stat(carpeta.c_str(), &estado) == 0 && S_ISDIR(estado.st_mode) && estado.st_uid == ::geteuid() &&
         (estado.st_mode & S_IWOTH) == 0 && soloNuestra(carpeta);
}

}  // namespace

LugarDePaso lugarDePaso(std::string const& deEjecucion, std::string const& home) {
  if (esLlana(deEjecucion) && esCarpetaPrivada(deEjecucion)) return {deEjecucion, true};
  auto const reserva = home + "/.cache";
  if (esLlana(reserva) && esPropia(reserva)) return {reserva, true};
  return {deTodos, false};
}

CarpetaDePaso::CarpetaDePaso(LugarDePaso const& lugar) {
  auto plantilla = lugar.carpeta + "/zorve-XXXXXX";
  if (::mkdtemp(plantilla.data()) != nullptr) ruta_ = plantilla;
}

CarpetaDePaso::~CarpetaDePaso() {
  std::error_code ignorado;
  if (!ruta_.empty() && !seQueda_) std::filesystem::remove_all(ruta_, ignorado);
}

bool CarpetaDePaso::escribir(std::string const& nombre, std::string_view texto) const {
  if (ruta_.empty()) return false;
  Descriptor const archivo{::open((ruta_ + "/" + nombre).c_str(),
                                  O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR)};
  return archivo && escribirTodo(archivo.numero(), texto) == 0;
}

}  // namespace zorve::ayudante
