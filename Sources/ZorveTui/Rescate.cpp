#include "ZorveTui/Rescate.h"

#include <signal.h>  // NOLINT(modernize-deprecated-headers): sigaction is POSIX, not C++
#include <unistd.h>

#include <array>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <exception>

namespace zorve::tui {

namespace {

constexpr std::array faltas{SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT, SIGSYS, SIGTRAP, SIGXCPU};

/// Everything that a handler may touch: plain memory, filled before `activo` says so.
struct Guardado {
  std::atomic<bool> activo = false;
  int terminal = -1;
  termios modos{};
  std::array<char, 512> texto{};
  std::size_t largo = 0;
};

Guardado guardado;
std::array<struct sigaction, faltas.size()> anteriores{};
std::terminate_handler terminarDeAntes = nullptr;

void alFallar(int senal) {
  Rescate::restablecer();
  struct sigaction deFabrica{};
  deFabrica.sa_handler = SIG_DFL;
  ::sigaction(senal, &deFabrica, nullptr);
  ::raise(senal);
}

[[noreturn]] void alTerminar() {
  Rescate::restablecer();
  if (terminarDeAntes != nullptr) terminarDeAntes();
  std::abort();
}

}  // namespace

Rescate::Rescate(int terminal, termios const& modos, std::string const& restablecer) {
  guardado.terminal = terminal;
  guardado.modos = modos;
  guardado.largo = std::min(restablecer.size(), guardado.texto.size());
  std::memcpy(guardado.texto.data(), restablecer.data(), guardado.largo);
  guardado.activo = true;
  struct sigaction accion{};
  accion.sa_handler = alFallar;
  sigemptyset(&accion.sa_mask);
  for (std::size_t i = 0; i < faltas.size(); ++i) ::sigaction(faltas[i], &accion, &anteriores[i]);
  terminarDeAntes = std::set_terminate(alTerminar);
}

Rescate::~Rescate() {
  pausar();
  for (std::size_t i = 0; i < faltas.size(); ++i) ::sigaction(faltas[i], &anteriores[i], nullptr);
  std::set_terminate(terminarDeAntes);
}

void Rescate::pausar() { guardado.activo = false; }
void Rescate::seguir() { guardado.activo = true; }

void Rescate::restablecer() {
  if (!guardado.activo.exchange(false)) return;
  (void)!::write(guardado.terminal, guardado.texto.data(), guardado.largo);
  ::tcsetattr(guardado.terminal, TCSANOW, &guardado.modos);
}

}  // namespace zorve::tui
