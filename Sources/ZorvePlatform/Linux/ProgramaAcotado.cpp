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
#include "ZorvePlatform/Posix/ProcesoHijo.h"

namespace zorve {

namespace {

using Reloj = std::chrono::steady_clock;

constexpr std::size_t maximoDeSalida = 64UL * 1024;

/// Starts the program in a process group of its own that writes to `escritura`; 0 when it cannot.
pid_t empezar(std::string const& ruta, std::span<std::string const> args, int escritura) {
  std::vector<std::string> palabras{args.begin(), args.end()};
  palabras.insert(palabras.begin(), ruta);
  AccionesDelHijo const acciones{escritura, -1};
  AtributosDelHijo const atributos{POSIX_SPAWN_SETPGROUP};
  if (acciones.codigo() != 0 || atributos.codigo() != 0) return 0;
  pid_t pid = 0;
  int const codigo = ::posix_spawn(&pid, ruta.c_str(), acciones.puntero(), atributos.puntero(),
                                   punteros(palabras).data(), environ);
  return codigo == 0 ? pid : 0;
}

int milisegundosHasta(Reloj::time_point limite) {
  auto const resto = std::chrono::ceil<std::chrono::milliseconds>(limite - Reloj::now()).count();
  return resto > 0 ? static_cast<int>(resto) : 0;
}

/// Reads to the end; false when the time is over or it is too much.
bool leerHastaElFinal(int lectura, std::string& salida, Reloj::time_point limite) {
  std::array<char, 4096> trozo{};
  for (;;) {
    pollfd esperado{lectura, POLLIN, 0};
    int const listos = ::poll(&esperado, 1, milisegundosHasta(limite));
    if (listos < 0 && errno == EINTR) continue;
    if (listos <= 0) return false;
    auto const n = ::read(lectura, trozo.data(), trozo.size());
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return n == 0;
    salida.append(trozo.data(), static_cast<std::size_t>(n));
    if (salida.size() > maximoDeSalida) return false;
  }
}

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
  pid_t const pid = empezar(ruta, args, escritura.numero());
  escritura.cerrar();
  if (pid == 0) return std::nullopt;
  std::string salida;
  bool const leida = leerHastaElFinal(lectura.numero(), salida, limite);
  bool const bien = terminar(pid, leida ? limite : Reloj::now());
  return leida && bien ? std::optional{std::move(salida)} : std::nullopt;
}

}  // namespace zorve
