#include "ZorvePlatform/Linux/ProgramaAcotado.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <vector>

#include "ZorvePlatform/Posix/Descriptor.h"
#include "ZorvePlatform/Posix/EjecutorDeProcesos.h"
#include "ZorvePlatform/Posix/Flujo.h"
#include "ZorvePlatform/Posix/ProcesoHijo.h"

namespace zorve {

namespace {

using Reloj = std::chrono::steady_clock;

constexpr std::size_t maximoDeSalida = 64UL * 1024;

/// Waits for the end until `limite`, then kills the group. True if it ended by itself with status 0.
bool terminar(pid_t pid, Reloj::time_point limite) {
  int estado = 0;
  if (Reloj::now() >= limite) ::kill(-pid, SIGKILL);
  for (;;) {
    pid_t const terminado = ::waitpid(pid, &estado, WNOHANG);
    if (terminado == pid) return WIFEXITED(estado) && WEXITSTATUS(estado) == 0;
    if (terminado < 0 && errno != EINTR) return false;
    if (Reloj::now() >= limite) break;
    ::poll(nullptr, 0, 1);
  }
  ::kill(-pid, SIGKILL);
  while (::waitpid(pid, &estado, 0) < 0 && errno == EINTR) {
  }
  return false;
}

}  // namespace

std::optional<std::string> salidaDe(std::string const& ruta, std::span<std::string const> args,
                                    std::chrono::milliseconds plazo) {
  auto const limite = Reloj::now() + plazo;
  std::array<int, 2> extremos{-1, -1};
  if (::pipe2(extremos.data(), O_CLOEXEC) != 0) return std::nullopt;
  Descriptor const lectura{extremos[0]};
  Descriptor escritura{extremos[1]};
  auto const pid = empezarHijo({.ruta = ruta,
                                .args = {args.begin(), args.end()},
                                .entorno = entornoDelProceso(),
                                .salida = escritura.numero(),
                                .ademas = POSIX_SPAWN_SETPGROUP});
  escritura.cerrar();
  if (!pid) return std::nullopt;
  auto salida = leerHastaElFin(lectura.numero(), {.bytes = maximoDeSalida, .limite = limite});
  bool const bien = terminar(*pid, salida ? limite : Reloj::now());
  return salida && bien ? std::optional{*std::move(salida)} : std::nullopt;
}

}  // namespace zorve
