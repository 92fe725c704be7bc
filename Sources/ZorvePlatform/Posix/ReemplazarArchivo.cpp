#include "ZorvePlatform/Posix/ReemplazarArchivo.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include "ZorvePlatform/Posix/Descriptor.h"
#include "ZorvePlatform/Posix/Flujo.h"

namespace zorve {

namespace {

/// Between the name of a file and what tells its replacement from others.
constexpr char const* marcaDePaso = ".zorve-";

using Resultado = std::expected<void, FalloDelSistema>;

Resultado errnoSiNo(bool bien) {
  if (bien) return {};
  return std::unexpected{FalloDelSistema::deErrno(errno)};
}

/// Where the chain of links that begins at `ruta` ends, whether anything is there or not.
std::expected<std::filesystem::path, FalloDelSistema> destinoDe(std::filesystem::path ruta) {
  constexpr int enlacesComoMucho = 40;
  for (int i = 0; i < enlacesComoMucho; ++i) {
    std::error_code error;
    auto const siguiente = std::filesystem::read_symlink(ruta, error);
    if (error) return ruta;
    ruta = siguiente.is_absolute() ? siguiente : ruta.parent_path() / siguiente;
  }
  return std::unexpected{FalloDelSistema::deErrno(ELOOP)};
}

Resultado llenar(int descriptor, std::string_view contenido) {
  if (::fcntl(descriptor, F_SETFD, FD_CLOEXEC) != 0) return errnoSiNo(false);
  if (::fchmod(descriptor, S_IRUSR | S_IWUSR) != 0) return errnoSiNo(false);
  if (int const codigo = escribirTodo(descriptor, contenido); codigo != 0) {
    return std::unexpected{FalloDelSistema::deErrno(codigo)};
  }
  return errnoSiNo(::fsync(descriptor) == 0);
}

/// So that the new name survives a crash; a folder that cannot be synchronised is no failure.
void sincronizarCarpeta(std::filesystem::path const& carpeta) {
  Descriptor const descriptor{::open(carpeta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
  if (descriptor) ::fsync(descriptor.numero());
}

}  // namespace

std::expected<void, FalloDelSistema> reemplazarArchivo(std::string const& ruta, std::string_view contenido) {
  auto const destino = destinoDe(ruta);
  if (!destino) return std::unexpected{destino.error()};
  auto temporal = destino->string() + marcaDePaso + "XXXXXX";
  Descriptor const descriptor{::mkstemp(temporal.data())};
  if (!descriptor) return errnoSiNo(false);
  auto resultado = llenar(descriptor.numero(), contenido);
  if (resultado) resultado = errnoSiNo(std::rename(temporal.c_str(), destino->c_str()) == 0);
  if (!resultado) ::unlink(temporal.c_str());
  if (resultado) sincronizarCarpeta(destino->parent_path());
  return resultado;
}

void quitarRestos(std::string const& ruta) {
  auto const destino = destinoDe(ruta);
  if (!destino) return;
  auto const principio = destino->filename().string() + marcaDePaso;
  std::error_code error;
  std::vector<std::filesystem::path> restos;
  for (std::filesystem::directory_iterator una{destino->parent_path(), error}, fin; !error && una != fin;
       una.increment(error)) {
    if (una->path().filename().string().starts_with(principio)) restos.push_back(una->path());
  }
  for (auto const& resto : restos) ::unlink(resto.c_str());
}

}  // namespace zorve
