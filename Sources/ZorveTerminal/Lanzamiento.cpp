#include "ZorveTerminal/Lanzamiento.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/inotify.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <system_error>

#include "ZorveCore/Lectura/Archivos.h"
#include "ZorveCore/Texto/Texto.h"
#include "ZorveCore/Texto/Unir.h"
#include "ZorvePlatform/Posix/Descriptor.h"
#include "ZorvePlatform/Posix/ProcesoHijo.h"

namespace zorve::ayudante {

namespace {

using Reloj = std::chrono::steady_clock;

constexpr std::size_t maximoDePalabras = 4096;

/// A directory where the program can start.
std::string dondeEmpieza(std::string const& directorio) {
  return ::access(directorio.c_str(), X_OK) == 0 ? directorio : "/";
}

/// What a program tells of itself besides why it ended.
bool esAcotacion(std::string_view linea) {
  constexpr std::array<std::string_view, 3> principios{"info:", "note:", "debug:"};
  return std::ranges::any_of(principios, [linea](auto principio) { return linea.starts_with(principio); });
}

/// The lines of `texto`, one behind the other; `todas` takes asides too.
std::string enUnaLinea(std::string_view texto, bool todas) {
  std::vector<std::string> lineas;
  while (!texto.empty()) {
    auto const linea = recortarAscii(sacarLinea(texto));
    if (!linea.empty() && (todas || !esAcotacion(linea))) lineas.emplace_back(linea);
  }
  return unidos(lineas, "; ");
}

std::string ultimasPalabras(int salida) {
  auto const largo = std::max<off_t>(::lseek(salida, 0, SEEK_END), 0);
  auto const desde = std::max<off_t>(largo - static_cast<off_t>(maximoDePalabras), 0);
  std::string palabras(static_cast<std::size_t>(largo - desde), '\0');
  auto const leidos = ::pread(salida, palabras.data(), palabras.size(), desde);
  palabras.resize(leidos < 0 ? 0 : static_cast<std::size_t>(leidos));
  auto linea = enUnaLinea(palabras, false);
  if (linea.empty()) linea = enUnaLinea(palabras, true);
  if (linea.size() > maximoDePalabras) linea.erase(0, linea.size() - maximoDePalabras);
  return linea;
}

FinTemprano finDe(std::string const& programa, int estado, int salida) {
  FinTemprano fin;
  if (WIFSIGNALED(estado)) {
    int const senal = WTERMSIG(estado);
    fin.codigo = 128 + senal;
    fin.mensaje =
        programa + " was ended by signal " + std::to_string(senal) + " (" + ::strsignal(senal) + ")";
  } else {
    fin.codigo = WEXITSTATUS(estado);
    fin.mensaje = programa + " ended with exit code " + std::to_string(fin.codigo);
  }
  auto const palabras = ultimasPalabras(salida);
  fin.mensaje += palabras.empty() ? " and said nothing" : ": " + palabras;
  return fin;
}

/// What a terminal says from now on is kept nowhere: writing fails.
void sellar(int salida) {
  if (::fcntl(salida, F_ADD_SEALS, F_SEAL_GROW) != 0) return;
  [[maybe_unused]] auto const vaciado = ::ftruncate(salida, 0);
}

std::unexpected<FinTemprano> noEmpieza(std::string const& programa, int codigo) {
  return std::unexpected{
      FinTemprano{127, programa + " could not be started: " + std::generic_category().message(codigo)}};
}

/// Waits until `proceso` ends, `vigia` (-1 for none) has something to say or the time is over. True if it was
/// `vigia`.
bool esperarLaSenal(int proceso, int vigia, Reloj::time_point limite) {
  std::array<pollfd, 2> esperados{{{proceso, POLLIN, 0}, {vigia, POLLIN, 0}}};
  for (;;) {
    auto const resto = std::chrono::ceil<std::chrono::milliseconds>(limite - Reloj::now()).count();
    if (resto <= 0) return false;
    if (::poll(esperados.data(), esperados.size(), static_cast<int>(resto)) > 0) {
      return esperados[1].revents != 0;
    }
  }
}

}  // namespace

std::expected<void, FinTemprano> lanzar(Lanzamiento const& lanzamiento, std::chrono::milliseconds plazo) {
  auto const limite = Reloj::now() + plazo;
  std::string const programa{nombreBase(lanzamiento.ejecutable)};
  Descriptor const salida{::memfd_create("zorve-terminal", MFD_CLOEXEC | MFD_ALLOW_SEALING)};
  if (!salida) return noEmpieza(programa, errno);
  Descriptor const vigia{::inotify_init1(IN_CLOEXEC | IN_NONBLOCK)};
  auto const vigila = !lanzamiento.senal.empty() &&
                      ::inotify_add_watch(vigia.numero(), lanzamiento.senal.c_str(), IN_DELETE_SELF) >= 0;
  auto const pid = empezarHijo({.ruta = lanzamiento.ejecutable,
                                .args = lanzamiento.args,
                                .entorno = lanzamiento.entorno,
                                .salida = salida.numero(),
                                .error = salida.numero(),
                                .ademas = POSIX_SPAWN_SETSID,
                                .directorio = dondeEmpieza(lanzamiento.directorio)});
  if (!pid) return noEmpieza(programa, pid.error());
  Descriptor const proceso{static_cast<int>(::syscall(SYS_pidfd_open, *pid, 0))};
  int estado = 0;
  bool const abierta = esperarLaSenal(proceso.numero(), vigila ? vigia.numero() : -1, limite) ||
                       ::waitpid(*pid, &estado, WNOHANG) != *pid ||
                       (WIFEXITED(estado) && WEXITSTATUS(estado) == 0);
  if (!abierta) return std::unexpected{finDe(programa, estado, salida.numero())};
  sellar(salida.numero());
  return {};
}

}  // namespace zorve::ayudante
