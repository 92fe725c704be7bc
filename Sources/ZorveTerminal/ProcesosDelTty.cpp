#include "ZorveTerminal/ProcesosDelTty.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <sstream>
#include <string_view>

#include "ZorveCore/Entero.h"
#include "ZorveCore/Escape.h"
#include "ZorvePlatform/Posix/Descriptor.h"

namespace zorve {

namespace {

constexpr std::size_t generacionesComoMucho = 64;
/// Between tty_nr and starttime (proc(5)).
constexpr int camposHastaElInicio = 14;

/// What can be read of a file of /proc; nothing of a process that ends meanwhile.
std::string leer(std::string const& ruta) {
  Descriptor const archivo{::open(ruta.c_str(), O_RDONLY | O_CLOEXEC)};
  std::string texto;
  std::array<char, 4096> trozo{};
  for (;;) {
    auto const n = ::read(archivo.numero(), trozo.data(), trozo.size());
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return {};
    if (n == 0) return texto;
    texto.append(trozo.data(), static_cast<std::size_t>(n));
  }
}

bool esNombreDeTty(std::string_view nombre) {
  return !nombre.empty() && std::ranges::all_of(nombre, [](char letra) {
    return (letra >= 'a' && letra <= 'z') || (letra >= 'A' && letra <= 'Z') ||
           (letra >= '0' && letra <= '9') || letra == '/';
  });
}

dev_t dispositivo(std::string const& tty) {
  struct stat estado{};
  auto const nombre = ttyCorto(tty);
  if (!esNombreDeTty(nombre) || ::stat(("/dev/" + nombre).c_str(), &estado) != 0) return 0;
  return S_ISCHR(estado.st_mode) ? estado.st_rdev : 0;
}

/// Every process that leads a session on a terminal device.
std::vector<Proceso> todosLosLideres() {
  std::vector<Proceso> lideres;
  std::error_code error;
  for (auto const& entrada : std::filesystem::directory_iterator{"/proc", error}) {
    auto const pid = enteroEn<pid_t>(entrada.path().filename().native());
    auto const proceso = pid ? procesoVivo(*pid) : std::nullopt;
    if (proceso && proceso->tty != 0 && proceso->sesion == proceso->pid) lideres.push_back(*proceso);
  }
  return lideres;
}

}  // namespace

std::optional<Proceso> leerStat(std::string const& texto) {
  auto const cierre = texto.rfind(')');
  auto const pid = enteroEn<pid_t>(std::string_view{texto}.substr(0, texto.find(' ')));
  if (cierre == std::string::npos || !pid) return std::nullopt;
  std::istringstream resto{texto.substr(cierre + 1)};
  std::string estado;
  pid_t grupo = 0;
  Proceso proceso{.pid = *pid};
  if (!(resto >> estado >> proceso.padre >> grupo >> proceso.sesion >> proceso.tty)) return std::nullopt;
  std::string otro;
  for (int i = 0; i < camposHastaElInicio; ++i) resto >> otro;
  if (!(resto >> proceso.inicio)) proceso.inicio = 0;
  return proceso;
}

std::optional<Proceso> procesoVivo(pid_t pid) {
  return leerStat(leer("/proc/" + std::to_string(pid) + "/stat"));
}

std::optional<Proceso> liderDelTty(std::string const& tty) {
  auto const cual = dispositivo(tty);
  if (cual == 0) return std::nullopt;
  auto const lideres = todosLosLideres();
  auto const lider = std::ranges::find(lideres, cual, &Proceso::tty);
  return lider != lideres.end() ? std::optional{*lider} : std::nullopt;
}

std::vector<Proceso> sesionesDe(pid_t anfitrion) {
  auto lideres = todosLosLideres();
  std::erase_if(lideres, [anfitrion](auto const& lider) { return lider.padre != anfitrion; });
  std::ranges::sort(lideres, {}, &Proceso::inicio);
  return lideres;
}

std::vector<pid_t> ascendencia(Proceso const& proceso) {
  std::vector<pid_t> pids;
  for (std::optional<Proceso> actual{proceso}; actual && actual->pid > 1;
       actual = procesoVivo(actual->padre)) {
    if (pids.size() == generacionesComoMucho) break;
    pids.push_back(actual->pid);
  }
  return pids;
}

std::string nombreDelProceso(pid_t pid) {
  auto nombre = leer("/proc/" + std::to_string(pid) + "/comm");
  if (nombre.ends_with('\n')) nombre.pop_back();
  return nombre;
}

std::string variableDelProceso(pid_t pid, std::string const& nombre) {
  auto const entorno = std::string(1, '\0') + leer("/proc/" + std::to_string(pid) + "/environ");
  auto const clave = std::string(1, '\0') + nombre + "=";
  auto const donde = entorno.find(clave);
  if (donde == std::string::npos) return {};
  auto const desde = donde + clave.size();
  return entorno.substr(desde, entorno.find('\0', desde) - desde);
}

}  // namespace zorve
