#include "ZorvePlatform/Posix/EjecutorDeProcesos.h"

#include <fcntl.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <mutex>
#include <utility>
#include <vector>

#include "ZorveCore/Lectura/Archivos.h"
#include "ZorveCore/Texto/Texto.h"
#include "ZorvePlatform/Posix/Descriptor.h"
#include "ZorvePlatform/Posix/Flujo.h"
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

std::expected<Hijo, FalloDelSistema> lanzar(std::string const& ruta, std::vector<std::string> args,
                                            std::vector<std::string> entorno) {
  static std::mutex unoALaVez;
  std::scoped_lock const turno{unoALaVez};
  auto tubo = nuevoTubo();
  if (!tubo) return std::unexpected{std::move(tubo).error()};
  int const salida = tubo->escritura.numero();
  auto const pid = empezarHijo({.ruta = ruta,
                                .args = std::move(args),
                                .entorno = std::move(entorno),
                                .salida = salida,
                                .error = salida});
  if (!pid) return fallo(pid.error());
  return Hijo{*pid, std::move(tubo->lectura)};
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
  auto const hijo =
      lanzar(ruta, {args.begin(), args.end()}, nombreBase(ruta) == "ps" ? entornoParaPs(entorno_) : entorno_);
  if (!hijo) return std::unexpected{hijo.error()};
  auto const salida = leerHastaElFin(hijo->lectura.numero()).value_or("");
  auto const codigo = esperar(hijo->pid);
  if (!codigo) return std::unexpected{codigo.error()};
  return ResultadoDeEjecucion{*codigo, conUtf8Valido(salida)};
}

std::vector<std::string> entornoParaPs(std::vector<std::string> const& entorno) {
  std::vector<std::string> propio{"LC_ALL=C"};
  auto const path = std::ranges::find_if(entorno, [](auto const& una) { return una.starts_with("PATH="); });
  if (path != entorno.end()) propio.push_back(*path);
  return propio;
}

std::vector<std::string> entornoDelProceso() {
  std::vector<std::string> entorno;
  for (char** variable = environ; *variable != nullptr; ++variable) entorno.emplace_back(*variable);
  return entorno;
}

}  // namespace zorve
