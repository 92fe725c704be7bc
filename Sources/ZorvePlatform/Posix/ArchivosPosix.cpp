#include "ZorvePlatform/Posix/ArchivosPosix.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <limits>
#include <string_view>

namespace zorve {

namespace {

std::unexpected<FalloDelSistema> fallo(int codigo) {
  return std::unexpected{FalloDelSistema::deErrno(codigo)};
}

bool tieneNul(std::string const& ruta) { return ruta.contains('\0'); }

ClaseDeArchivo claseDe(mode_t modo) {
  if (S_ISREG(modo)) return ClaseDeArchivo::regular;
  if (S_ISDIR(modo)) return ClaseDeArchivo::carpeta;
  if (S_ISLNK(modo)) return ClaseDeArchivo::enlace;
  return ClaseDeArchivo::otra;
}

Fecha fechaDe(struct timespec const& tiempo) {
  return Fecha{std::chrono::duration<double>{static_cast<double>(tiempo.tv_sec) +
                                             static_cast<double>(tiempo.tv_nsec) / 1e9}};
}

Fecha mtimeDe(struct stat const& estado) {
#if defined(__APPLE__)
  return fechaDe(estado.st_mtimespec);
#else
  return fechaDe(estado.st_mtim);
#endif
}

#if defined(__APPLE__)
bool estaOculto(struct stat const& estado) { return (estado.st_flags & UF_HIDDEN) != 0; }
#else
bool estaOculto(struct stat const& /*estado*/) { return false; }
#endif

class ArchivoPosix final : public ArchivoAbierto {
 public:
  explicit ArchivoPosix(int descriptor) : descriptor_{descriptor} {}
  ArchivoPosix(ArchivoPosix const&) = delete;
  ArchivoPosix& operator=(ArchivoPosix const&) = delete;
  ~ArchivoPosix() override { ::close(descriptor_); }

  [[nodiscard]] std::expected<std::size_t, FalloDelSistema> leer(std::int64_t desde,
                                                                 std::span<char> destino) override {
    std::size_t leidos = 0;
    while (leidos < destino.size()) {
      auto const resto = destino.subspan(leidos);
      auto const n =
          ::pread(descriptor_, resto.data(), resto.size(), desde + static_cast<std::int64_t>(leidos));
      if (n < 0 && errno == EINTR) continue;
      if (n < 0) return fallo(errno);
      if (n == 0) break;
      leidos += static_cast<std::size_t>(n);
    }
    return leidos;
  }

  [[nodiscard]] std::expected<std::int64_t, FalloDelSistema> tamano() override {
    struct stat estado{};
    if (::fstat(descriptor_, &estado) != 0) return fallo(errno);
    return estado.st_size;
  }

 private:
  int descriptor_;
};

}  // namespace

std::expected<std::unique_ptr<ArchivoAbierto>, FalloDelSistema> ArchivosPosix::abrir(
    std::string const& ruta) {
  if (tieneNul(ruta)) return fallo(ENOENT);
  int const descriptor = ::open(ruta.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
  if (descriptor < 0) return fallo(errno);
  auto archivo = std::make_unique<ArchivoPosix>(descriptor);
  struct stat estado{};
  if (::fstat(descriptor, &estado) != 0) return fallo(errno);
  if (S_ISDIR(estado.st_mode)) return fallo(EISDIR);
  if (!S_ISREG(estado.st_mode)) return std::unexpected{FalloDelSistema{EINVAL, "Not a regular file"}};
  return archivo;
}

std::expected<Atributos, FalloDelSistema> ArchivosPosix::atributos(std::string const& ruta) {
  if (tieneNul(ruta)) return fallo(ENOENT);
  struct stat estado{};
  if (::lstat(ruta.c_str(), &estado) != 0) return fallo(errno);
  return Atributos{claseDe(estado.st_mode), estado.st_size, mtimeDe(estado), estaOculto(estado)};
}

std::expected<std::vector<std::string>, FalloDelSistema> ArchivosPosix::listar(std::string const& ruta) {
  if (tieneNul(ruta)) return fallo(ENOENT);
  std::unique_ptr<DIR, int (*)(DIR*)> const carpeta{::opendir(ruta.c_str()), ::closedir};
  if (!carpeta) return fallo(errno);
  std::vector<std::string> nombres;
  for (errno = 0; dirent const* entrada = ::readdir(carpeta.get()); errno = 0) {
    std::string_view const nombre{entrada->d_name};
    if (nombre != "." && nombre != "..") nombres.emplace_back(nombre);
  }
  if (errno != 0) return fallo(errno);
  return nombres;
}

bool ArchivosPosix::existe(std::string const& ruta) {
  struct stat estado{};
  return !tieneNul(ruta) && ::stat(ruta.c_str(), &estado) == 0;
}

}  // namespace zorve
