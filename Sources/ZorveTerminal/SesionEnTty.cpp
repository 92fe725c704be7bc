#include "ZorveTerminal/SesionEnTty.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <sstream>
#include <string_view>

#include "ZorveCore/Texto/Entero.h"
#include "ZorveCore/Texto/Escape.h"
#include "ZorvePlatform/Posix/Descriptor.h"
#include "ZorvePlatform/Posix/Flujo.h"

namespace zorve::ayudante {

namespace {

constexpr std::size_t generacionesComoMucho = 64;
/// Between tty_nr and starttime (proc(5)).
constexpr int camposHastaElInicio = 14;

/// What can be read of a file of /proc; nothing of a process that ends meanwhile.
std::string leer(std::string const& ruta) {
  Descriptor const archivo{::open(ruta.c_str(), O_RDONLY | O_CLOEXEC)};
  return leerHastaElFin(archivo.numero()).value_or("");
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

/// Whether the process sees, by that name, the device that is here; nothing where that cannot be known.
std::optional<bool> veElDeAqui(pid_t pid, std::string const& tty) {
  struct stat suyo{};
  struct stat deAqui{};
  auto const nombre = "/dev/" + ttyCorto(tty);
  if (::stat(("/proc/" + std::to_string(pid) + "/root" + nombre).c_str(), &suyo) != 0) {
    return errno == EACCES || errno == EPERM ? std::nullopt : std::optional{false};
  }
  return ::stat(nombre.c_str(), &deAqui) == 0 && suyo.st_dev == deAqui.st_dev &&
         suyo.st_ino == deAqui.st_ino && suyo.st_rdev == deAqui.st_rdev;
}

std::optional<Proceso> liderDe(pid_t quien, dev_t cual, std::string const& tty) {
  auto const proceso = procesoVivo(quien);
  if (!proceso || proceso->tty != cual || !veElDeAqui(quien, tty).value_or(false)) return std::nullopt;
  auto const lider = procesoVivo(proceso->sesion);
  return lider && lider->tty == cual && lider->sesion == lider->pid ? lider : std::nullopt;
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

std::optional<Proceso> liderDelTty(std::string const& tty, std::optional<pid_t> deQuien) {
  auto const cual = dispositivo(tty);
  if (cual == 0) return std::nullopt;
  if (deQuien) return liderDe(*deQuien, cual, tty);
  auto const lideres = todosLosLideres();
  auto const lider = std::ranges::find_if(
      lideres, [&](auto const& uno) { return uno.tty == cual && veElDeAqui(uno.pid, tty).value_or(true); });
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

bool SesionEnTty::desciendeDe(pid_t pid) const {
  return pid > 0 && std::ranges::find(ascendencia, pid) != ascendencia.end();
}

bool SesionEnTty::sigue() const {
  auto const ahora = procesoVivo(lider.pid);
  return ahora && ahora->inicio == lider.inicio && ahora->tty == lider.tty;
}

std::optional<SesionEnTty> sesionEnTty(std::string const& tty, std::optional<pid_t> deQuien) {
  auto const lider = liderDelTty(tty, deQuien);
  if (!lider) return std::nullopt;
  return SesionEnTty{tty, *lider, ascendencia(*lider)};
}

}  // namespace zorve::ayudante
