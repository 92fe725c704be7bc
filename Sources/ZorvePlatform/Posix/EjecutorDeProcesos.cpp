#include "ZorvePlatform/Posix/EjecutorDeProcesos.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <mutex>
#include <utility>
#include <vector>

#include "ZorveCore/Texto.h"
#include "ZorvePlatform/Posix/Descriptor.h"
#include "ZorvePlatform/Posix/ProcesoHijo.h"

extern char** environ;  // NOLINT(readability-redundant-declaration)

namespace zorve {

namespace {

std::unexpected<FalloDelSistema> fallo(int codigo) {
  return std::unexpected{FalloDelSistema::deErrno(codigo)};
}

struct Tubo {
  Descriptor lectura;
  Descriptor escritura;
};

std::expected<Tubo, FalloDelSistema> nuevoTubo() {
  std::array<int, 2> extremos{-1, -1};
  if (::pipe(extremos.data()) != 0) return fallo(errno);
  Tubo tubo{Descriptor{extremos[0]}, Descriptor{extremos[1]}};
  for (int const extremo : extremos) {
    if (::fcntl(extremo, F_SETFD, FD_CLOEXEC) != 0) return fallo(errno);
  }
  return tubo;
}

struct Hijo {
  pid_t pid = 0;
  Descriptor lectura;
};

std::expected<Hijo, FalloDelSistema> lanzar(std::vector<std::string> palabras,
                                            std::vector<std::string> entorno) {
  static std::mutex unoALaVez;
  std::scoped_lock const turno{unoALaVez};
  auto tubo = nuevoTubo();
  if (!tubo) return std::unexpected{std::move(tubo).error()};
  AccionesDelHijo const acciones{tubo->escritura.numero(), tubo->escritura.numero()};
  AtributosDelHijo const atributos;
  if (int const codigo = std::max(acciones.codigo(), atributos.codigo()); codigo != 0) return fallo(codigo);
  Hijo hijo{0, std::move(tubo->lectura)};
  auto const ruta = palabras.front();
  int const codigo = ::posix_spawn(&hijo.pid, ruta.c_str(), acciones.puntero(), atributos.puntero(),
                                   punteros(palabras).data(), punteros(entorno).data());
  if (codigo != 0) return fallo(codigo);
  return hijo;
}

std::string leerHastaElFin(int descriptor) {
  std::string todo;
  std::array<char, 65536> trozo{};
  for (;;) {
    auto const n = ::read(descriptor, trozo.data(), trozo.size());
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return todo;
    todo.append(trozo.data(), static_cast<std::size_t>(n));
  }
}

std::expected<std::int32_t, FalloDelSistema> esperar(pid_t pid) {
  int estado = 0;
  while (::waitpid(pid, &estado, 0) < 0) {
    if (errno != EINTR) return fallo(errno);
  }
  return WIFEXITED(estado) ? WEXITSTATUS(estado) : 128 + WTERMSIG(estado);
}

bool tieneNul(std::string const& texto) { return texto.contains('\0'); }

}  // namespace

EjecutorDeProcesos::EjecutorDeProcesos() : EjecutorDeProcesos{entornoDelProceso()} {}

EjecutorDeProcesos::EjecutorDeProcesos(std::vector<std::string> entorno) : entorno_{std::move(entorno)} {}

std::expected<ResultadoDeEjecucion, FalloDelSistema> EjecutorDeProcesos::correr(
    std::string const& ruta, std::span<std::string const> args) const {
  if (tieneNul(ruta) || std::ranges::any_of(args, tieneNul)) {
    return std::unexpected{FalloDelSistema{EINVAL, "The path or an argument holds a NUL byte"}};
  }
  std::vector<std::string> palabras{ruta};
  palabras.insert(palabras.end(), args.begin(), args.end());
  auto const hijo = lanzar(std::move(palabras), entorno_);
  if (!hijo) return std::unexpected{hijo.error()};
  auto const salida = leerHastaElFin(hijo->lectura.numero());
  auto const codigo = esperar(hijo->pid);
  if (!codigo) return std::unexpected{codigo.error()};
  return ResultadoDeEjecucion{*codigo, conUtf8Valido(salida)};
}

std::vector<std::string> entornoDelProceso() {
  std::vector<std::string> entorno;
  for (char** variable = environ; *variable != nullptr; ++variable) entorno.emplace_back(*variable);
  return entorno;
}

}  // namespace zorve
