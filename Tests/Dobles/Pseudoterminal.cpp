#include "Dobles/Pseudoterminal.h"

#include <poll.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#if defined(__APPLE__)
#include <util.h>
#else
#include <pty.h>
#endif

#include <array>
#include <csignal>
#include <stdexcept>

#include "ZorvePlatform/Posix/ProcesoHijo.h"

namespace zorve::dobles {

namespace {

/// As a terminal starts its programs, whatever the test itself was started with.
void senalesDeFabrica() {
  for (int senal = 1; senal < NSIG; ++senal) ::signal(senal, SIG_DFL);
  sigset_t ninguna;
  sigemptyset(&ninguna);
  ::sigprocmask(SIG_SETMASK, &ninguna, nullptr);
}

}  // namespace

Pseudoterminal::Pseudoterminal(std::vector<std::string> palabras, std::vector<std::string> entorno,
                               std::string const& carpeta) {
  auto const argumentos = punteros(palabras);
  auto const variables = punteros(entorno);
  winsize tamano{40, 300, 0, 0};
  pid_ = ::forkpty(&maestro_, nullptr, nullptr, &tamano);
  if (pid_ < 0) throw std::runtime_error("forkpty failed");
  if (pid_ == 0) {
    senalesDeFabrica();
    if (::chdir(carpeta.c_str()) == 0) ::execve(argumentos[0], argumentos.data(), variables.data());
    ::_exit(127);
  }
}

Pseudoterminal::~Pseudoterminal() {
  ::close(maestro_);
  if (pid_ > 0) {
    ::kill(pid_, SIGKILL);
    ::waitpid(pid_, nullptr, 0);
  }
}

void Pseudoterminal::escribir(std::string_view teclas) const {
  if (::write(maestro_, teclas.data(), teclas.size()) != static_cast<ssize_t>(teclas.size())) {
    throw std::runtime_error("the terminal took no keys");
  }
}

bool Pseudoterminal::leer(int milisegundos) {
  pollfd esperado{maestro_, POLLIN, 0};
  if (::poll(&esperado, 1, milisegundos) <= 0) return false;
  std::array<char, 4096> trozo{};
  auto const n = ::read(maestro_, trozo.data(), trozo.size());
  if (n <= 0) return false;
  pantalla_.append(trozo.data(), static_cast<std::size_t>(n));
  return true;
}

bool Pseudoterminal::esperar(std::string_view texto, std::chrono::seconds plazo) {
  auto const limite = std::chrono::steady_clock::now() + plazo;
  for (;;) {
    if (auto const donde = pantalla_.find(texto, visto_); donde != std::string::npos) {
      visto_ = donde + texto.size();
      return true;
    }
    if (std::chrono::steady_clock::now() >= limite) return false;
    if (!leer(100)) ::usleep(1000);
  }
}

int Pseudoterminal::terminar() {
  int estado = 0;
  auto const limite = std::chrono::steady_clock::now() + std::chrono::seconds{20};
  while (std::chrono::steady_clock::now() < limite) {
    if (::waitpid(pid_, &estado, WNOHANG) == pid_) {
      pid_ = 0;
      return WIFEXITED(estado) ? WEXITSTATUS(estado) : -WTERMSIG(estado);
    }
    if (!leer(10)) ::usleep(1000);
  }
  throw std::runtime_error("the program does not end");
}

}  // namespace zorve::dobles
