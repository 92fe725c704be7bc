#include "ZorvePlatform/Linux/DirectoriosLinux.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <climits>
#include <deque>
#include <optional>
#include <utility>

#include "ZorvePlatform/Linux/Montajes.h"
#include "ZorvePlatform/Posix/ArchivosPosix.h"

namespace zorve {

namespace {

constexpr std::chrono::seconds plazo{1};
constexpr std::size_t topeDeMontajes = std::size_t{1} << 20U;
/// As many as the system itself follows.
constexpr int enlacesSeguidos = 40;

/// The system writes it as it is read: it says no size. Nothing where it is longer than a machine's ever is.
std::optional<Montajes> leerMontajes(std::string const& mountinfo) {
  ArchivosPosix archivos;
  auto const archivo = archivos.abrir(mountinfo);
  if (!archivo) return std::nullopt;
  std::string texto(topeDeMontajes, '\0');
  auto const leidos = (*archivo)->leer(0, texto);
  if (!leidos || *leidos == texto.size()) return std::nullopt;
  return Montajes{std::string_view{texto}.substr(0, *leidos)};
}

/// The names between slashes, put before those of `cola`.
void anteponer(std::deque<std::string>& cola, std::string_view ruta) {
  std::deque<std::string> nombres;
  while (!ruta.empty()) {
    auto const nombre = ruta.substr(0, ruta.find('/'));
    ruta.remove_prefix(std::min(nombre.size() + 1, ruta.size()));
    if (!nombre.empty() && nombre != ".") nombres.emplace_back(nombre);
  }
  cola.insert(cola.begin(), nombres.begin(), nombres.end());
}

std::optional<std::string> destinoDe(std::string const& enlace) {
  std::array<char, PATH_MAX> destino{};
  auto const largo = ::readlink(enlace.c_str(), destino.data(), destino.size());
  if (largo <= 0 || static_cast<std::size_t>(largo) == destino.size()) return std::nullopt;
  return std::string{destino.data(), static_cast<std::size_t>(largo)};
}

/// One path, followed from the root.
class Camino {
 public:
  Camino(std::string_view ruta, Montajes const& montajes) : montajes_{montajes} { anteponer(faltan_, ruta); }

  /// Whether it leads nowhere, for certain.
  bool acabaEnNada() {
    while (!faltan_.empty()) {
      auto const nombre = std::move(faltan_.front());
      faltan_.pop_front();
      if (nombre == "..") {
        aqui_.erase(std::min(aqui_.rfind('/'), aqui_.size()));
        continue;
      }
      auto const alli = aqui_ + "/" + nombre;
      if (auto const sabido = paso(alli)) return *sabido;
    }
    return false;
  }

 private:
  /// One step; whether the path ends there in nothing, or nothing while it goes on.
  std::optional<bool> paso(std::string const& alli) {
    if (!montajes_.esLocal(alli)) return false;
    struct ::stat datos{};
    if (::lstat(alli.c_str(), &datos) != 0) return errno == ENOENT || errno == ENOTDIR;
    if (S_ISLNK(datos.st_mode)) return seguir(alli);
    if (!S_ISDIR(datos.st_mode)) return true;
    aqui_ = alli;
    return std::nullopt;
  }

  std::optional<bool> seguir(std::string const& enlace) {
    auto const destino = destinoDe(enlace);
    if (!destino || ++enlaces_ > enlacesSeguidos) return false;
    if (destino->starts_with('/')) aqui_.clear();
    anteponer(faltan_, *destino);
    return std::nullopt;
  }

  Montajes const& montajes_;
  std::string aqui_;
  std::deque<std::string> faltan_;
  int enlaces_ = 0;
};

}  // namespace

DirectoriosLinux::DirectoriosLinux(std::string mountinfo) : mountinfo_{std::move(mountinfo)} {}

std::vector<std::string> DirectoriosLinux::losQueFaltan(std::span<std::string const> rutas) {
  auto const montajes = leerMontajes(mountinfo_);
  if (!montajes) return {};
  auto const hasta = std::chrono::steady_clock::now() + plazo;
  std::vector<std::string> perdidos;
  for (auto const& ruta : rutas) {
    if (std::chrono::steady_clock::now() > hasta) break;
    if (ruta.starts_with('/') && Camino{ruta, *montajes}.acabaEnNada()) perdidos.push_back(ruta);
  }
  return perdidos;
}

}  // namespace zorve
