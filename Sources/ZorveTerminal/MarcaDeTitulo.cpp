#include "ZorveTerminal/MarcaDeTitulo.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <string_view>
#include <utility>

#include "ZorveCore/Texto/Escape.h"
#include "ZorveCore/Texto/TextoVisible.h"

namespace zorve::ayudante {

namespace {

constexpr std::string_view guardar = "\033[22;0t";
constexpr std::string_view devolver = "\033[23;0t";
/// The major device numbers of Unix 98 pseudoterminals (Linux, admin-guide/devices.txt).
constexpr unsigned primerPts = 136;
constexpr unsigned ultimoPts = 143;
constexpr int esperaDeEscritura = 500;
constexpr int esperaDelGuardian = 1500;

std::string ponerTitulo(std::string const& titulo) { return "\033]0;" + titulo + "\a"; }

/// Only functions that are safe between fork and exec. A device that takes nothing is given up after `espera`
/// ms. Gives how many bytes it took.
std::size_t escribir(int descriptor, std::string_view texto, int espera) {
  auto const todo = texto.size();
  while (!texto.empty()) {
    auto const n = ::write(descriptor, texto.data(), texto.size());
    if (n > 0) {
      texto.remove_prefix(static_cast<std::size_t>(n));
      continue;
    }
    if (n < 0 && errno == EINTR) continue;
    pollfd listo{descriptor, POLLOUT, 0};
    if ((n < 0 && errno != EAGAIN) || ::poll(&listo, 1, espera) <= 0) break;
  }
  return todo - texto.size();
}

std::string alAzar() {
  std::array<std::uint8_t, 12> bytes{};
  if (::getrandom(bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size())) return {};
  constexpr std::string_view cifras = "0123456789abcdef";
  std::string texto = "zorve-";
  for (auto const byte : bytes) (texto += cifras[byte / 16]) += cifras[byte % 16];
  return texto;
}

bool esElSuyo(int descriptor, Proceso const& lider) {
  struct stat estado{};
  struct stat proceso{};
  if (::fstat(descriptor, &estado) != 0 || !S_ISCHR(estado.st_mode)) return false;
  auto const mayor = major(estado.st_rdev);
  return mayor >= primerPts && mayor <= ultimoPts && estado.st_rdev == lider.tty &&
         estado.st_uid == ::geteuid() && procesoVivo(lider.pid) == lider &&
         ::stat(("/proc/" + std::to_string(lider.pid)).c_str(), &proceso) == 0 &&
         proceso.st_uid == ::geteuid();
}

Descriptor abrirElSuyo(std::string const& tty, Proceso const& lider) {
  auto const nombre = ttyCorto(tty);
  auto const numero = nombre.starts_with("pts/") ? nombre.substr(4) : std::string{};
  auto const cifras = [](char letra) { return letra >= '0' && letra <= '9'; };
  if (numero.empty() || !std::ranges::all_of(numero, cifras)) return {};
  Descriptor dispositivo{
      ::open(("/dev/" + nombre).c_str(), O_WRONLY | O_NOCTTY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC)};
  return dispositivo && esElSuyo(dispositivo.numero(), lider) ? std::move(dispositivo) : Descriptor{};
}

/// What the guardian is told: something was written, or nothing after all.
constexpr char hayMarca = 'm';
constexpr char noHayMarca = '-';

void avisar(int hilo, char que) { (void)escribir(hilo, {&que, 1}, esperaDeEscritura); }

/// Waits for the end of `hilo`, in a session of its own and deaf to signals, then asks the title back if the
/// last word was that there is a mark.
[[noreturn]] void guardarElTitulo(int dispositivo, int hilo) {
  ::setsid();
  for (int const senal : {SIGHUP, SIGINT, SIGTERM, SIGPIPE, SIGQUIT, SIGALRM}) ::signal(senal, SIG_IGN);
  int const nada = ::open("/dev/null", O_RDWR);
  for (int const flujo : {0, 1, 2}) {
    if (nada >= 0) ::dup2(nada, flujo);
  }
  char ultimo = noHayMarca;
  for (auto n = ::read(hilo, &ultimo, 1); n > 0 || (n < 0 && errno == EINTR);) n = ::read(hilo, &ultimo, 1);
  if (ultimo == hayMarca) (void)escribir(dispositivo, devolver, esperaDelGuardian);
  ::_exit(0);
}

}  // namespace

std::expected<MarcaDeTitulo, std::string> MarcaDeTitulo::poner(std::string const& tty, Proceso const& lider) {
  auto const no = [&](char const* porque) {
    return std::unexpected{"the title of " + textoVisible(ttyCorto(tty)) + " cannot be marked: " + porque};
  };
  auto dispositivo = abrirElSuyo(tty, lider);
  if (!dispositivo) return no("it is not this user's own terminal device");
  auto texto = alAzar();
  std::array<int, 2> tubo{};
  if (texto.empty() || ::pipe2(tubo.data(), O_CLOEXEC) != 0) return no("the system gives nothing more");
  Descriptor lectura{tubo[0]};
  Descriptor escritura{tubo[1]};
  auto const guardian = ::fork();
  if (guardian < 0) return no("no process can be started");
  if (guardian == 0) {
    escritura.cerrar();
    guardarElTitulo(dispositivo.numero(), lectura.numero());
  }
  MarcaDeTitulo marca{std::move(texto), std::move(dispositivo), std::move(escritura), guardian};
  auto const principio = std::string{guardar} + ponerTitulo(marca.texto_);
  avisar(marca.hilo_.numero(), hayMarca);
  auto const escritos = escribir(marca.dispositivo_.numero(), principio, esperaDeEscritura);
  if (escritos == 0) avisar(marca.hilo_.numero(), noHayMarca);
  if (escritos < principio.size()) return no("its terminal takes nothing");
  return marca;
}

MarcaDeTitulo::MarcaDeTitulo(std::string texto, Descriptor dispositivo, Descriptor hilo, pid_t guardian)
    : texto_{std::move(texto)},
      dispositivo_{std::move(dispositivo)},
      hilo_{std::move(hilo)},
      guardian_{guardian} {}

MarcaDeTitulo::MarcaDeTitulo(MarcaDeTitulo&& otra) noexcept
    : texto_{std::move(otra.texto_)},
      dispositivo_{std::move(otra.dispositivo_)},
      hilo_{std::move(otra.hilo_)},
      guardian_{std::exchange(otra.guardian_, 0)} {}

MarcaDeTitulo::~MarcaDeTitulo() {
  if (guardian_ <= 0) return;
  hilo_.cerrar();
  while (::waitpid(guardian_, nullptr, 0) < 0 && errno == EINTR) {
  }
}

void MarcaDeTitulo::repetir() const {
  (void)escribir(dispositivo_.numero(), ponerTitulo(texto_), esperaDeEscritura);
}

}  // namespace zorve::ayudante
