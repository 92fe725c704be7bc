#include "ZorveTui/Relevar.h"

#include <fcntl.h>
#include <signal.h>  // NOLINT(modernize-deprecated-headers): sigaction is POSIX, not C++
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

#include "ZorveCore/FalloDelSistema.h"
#include "ZorvePlatform/Posix/ProcesoHijo.h"

extern char** environ;  // NOLINT(readability-redundant-declaration)

namespace zorve::tui {

namespace {

void senalesDeFabrica() {
  struct sigaction deFabrica{};
  deFabrica.sa_handler = SIG_DFL;
  for (int senal = 1; senal < NSIG; ++senal) ::sigaction(senal, &deFabrica, nullptr);
  sigset_t ninguna;
  sigemptyset(&ninguna);
  ::sigprocmask(SIG_SETMASK, &ninguna, nullptr);
}

void corrientesDelTerminal() {
  int const terminal = ::open("/dev/tty", O_RDWR | O_CLOEXEC);
  for (int const una : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (::isatty(una) == 0) ::dup2(terminal, una);
  }
}

std::string falla(std::string const& de) { return de + ": " + FalloDelSistema::deErrno(errno).descripcion; }

}  // namespace

std::string relevar(Relevo const& relevo) {
  if (!relevo.directorio.empty()) {
    if (::chdir(relevo.directorio.c_str()) != 0) return falla(relevo.directorio);
    ::setenv("PWD", relevo.directorio.c_str(), 1);
  }
  corrientesDelTerminal();
  senalesDeFabrica();
  auto palabras = relevo.args;
  palabras.insert(palabras.begin(), relevo.ruta);
  ::execve(relevo.ruta.c_str(), punteros(palabras).data(), environ);
  return falla(relevo.ruta);
}

void morirPor(int senal) {
  senalesDeFabrica();
  ::raise(senal);
  constexpr int porSenal = 128;
  ::_exit(porSenal + senal);
}

}  // namespace zorve::tui
