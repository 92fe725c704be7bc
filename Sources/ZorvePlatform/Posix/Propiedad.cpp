#include "ZorvePlatform/Posix/Propiedad.h"

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace zorve {

namespace {

constexpr std::size_t espacioDeCuentas = 1UZ << 16U;

/// The account's name; the empty text where there is none.
std::string nombreDe(uid_t usuario) {
  std::array<char, espacioDeCuentas> memoria{};
  passwd cuenta{};
  passwd* hallada = nullptr;
  (void)::getpwuid_r(usuario, &cuenta, memoria.data(), memoria.size(), &hallada);
  return hallada == nullptr ? std::string{} : hallada->pw_name;
}

/// As many systems make one with each account: named like it, without other members.
bool esGrupoPropio(gid_t grupo) {
  std::array<char, espacioDeCuentas> memoria{};
  group entrada{};
  group* hallado = nullptr;
  (void)::getgrgid_r(grupo, &entrada, memoria.data(), memoria.size(), &hallado);
  if (hallado == nullptr) return false;
  auto const yo = nombreDe(::geteuid());
  if (yo.empty() || yo != hallado->gr_name) return false;
  for (char** uno = hallado->gr_mem; *uno != nullptr; ++uno) {
    if (yo != *uno) return false;
  }
  return true;
}

bool otrosEscriben(struct stat const& estado) {
  if ((estado.st_mode & S_IWOTH) != 0) return true;
  return (estado.st_mode & S_IWGRP) != 0 && estado.st_gid != 0 && !esGrupoPropio(estado.st_gid);
}

bool esNuestro(std::string const& ruta) {
  struct stat estado{};
  if (::stat(ruta.c_str(), &estado) != 0) return false;
  bool const nuestro = estado.st_uid == ::geteuid() || estado.st_uid == 0;
  bool const pegajosa = S_ISDIR(estado.st_mode) && (estado.st_mode & S_ISVTX) != 0;
  return nuestro && (pegajosa || !otrosEscriben(estado));
}

}  // namespace

bool soloNuestra(std::string const& ruta) {
  if (!ruta.starts_with('/')) return false;
  std::error_code fallo;
  auto real = std::filesystem::canonical(ruta, fallo);
  if (fallo) return false;
  for (; real.has_relative_path(); real = real.parent_path()) {
    if (!esNuestro(real.string())) return false;
  }
  return esNuestro("/");
}

bool esCarpetaPrivada(std::string const& ruta) {
  struct stat estado{};
  return ruta.starts_with('/') && ::lstat(ruta.c_str(), &estado) == 0 && S_ISDIR(estado.st_mode) &&
         estado.st_uid == ::geteuid() && (estado.st_mode & (S_IRWXG | S_IRWXO)) == 0 && soloNuestra(ruta);
}

}  // namespace zorve
