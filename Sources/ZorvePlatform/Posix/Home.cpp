#include "ZorvePlatform/Posix/Home.h"

#include <pwd.h>
#include <unistd.h>

#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "ZorvePlatform/Posix/Variable.h"

namespace zorve {

namespace {

bool esAbsoluta(std::string_view ruta) { return ruta.starts_with('/'); }

std::string sinBarrasAlFinal(std::string ruta) {
  while (ruta.size() > 1 && ruta.ends_with('/')) ruta.pop_back();
  return ruta;
}

std::string homeDeLaCuenta() {
  constexpr std::size_t espacio = 1UZ << 16U;
  std::vector<char> memoria(espacio);
  struct passwd cuenta{};
  struct passwd* hallada = nullptr;
  if (::getpwuid_r(::getuid(), &cuenta, memoria.data(), memoria.size(), &hallada) != 0) return {};
  return hallada == nullptr || hallada->pw_dir == nullptr ? std::string{} : std::string{hallada->pw_dir};
}

}  // namespace

std::expected<std::string, std::string> homeDelUsuario() {
  if (auto home = variable("HOME"); esAbsoluta(home)) return sinBarrasAlFinal(std::move(home));
  auto cuenta = homeDeLaCuenta();
  if (esAbsoluta(cuenta)) return sinBarrasAlFinal(std::move(cuenta));
  return std::unexpected{
      "There is no home directory: HOME is not an absolute path and the account has none."};
}

std::string homeNombrado(std::string const& ruta) {
  if (esAbsoluta(ruta)) return sinBarrasAlFinal(ruta);
  std::error_code fallo;
  auto const real = std::filesystem::canonical(ruta, fallo);
  if (!fallo) return real.string();
  auto const absoluta = std::filesystem::absolute(ruta, fallo);
  return sinBarrasAlFinal((fallo ? std::filesystem::path{"/"} / ruta : absoluta).lexically_normal().string());
}

}  // namespace zorve
