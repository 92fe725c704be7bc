#include "ZorveTui/Senales.h"

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>

namespace zorve::tui {

namespace {

std::atomic<int> haciaElLazo = -1;

void anotar(int senal) {
  int const antes = errno;
  auto const byte = static_cast<unsigned char>(senal);
  (void)!::write(haciaElLazo, &byte, 1);
  errno = antes;
}

struct sigaction anotando() {
  struct sigaction accion{};
  accion.sa_handler = anotar;
  accion.sa_flags = SA_RESTART;
  sigfillset(&accion.sa_mask);
  return accion;
}

}  // namespace

Senales::Senales() {
  std::array<int, 2> extremos{-1, -1};
  (void)!::pipe(extremos.data());
  lectura_ = Descriptor{extremos[0]};
  escritura_ = Descriptor{extremos[1]};
  for (int const uno : extremos) {
    ::fcntl(uno, F_SETFD, FD_CLOEXEC);
    ::fcntl(uno, F_SETFL, O_NONBLOCK);
  }
  haciaElLazo = escritura_.numero();
  auto const accion = anotando();
  for (std::size_t i = 0; i < cuales.size(); ++i) ::sigaction(cuales[i], &accion, &anteriores_[i]);
}

Senales::~Senales() {
  for (std::size_t i = 0; i < cuales.size(); ++i) ::sigaction(cuales[i], &anteriores_[i], nullptr);
  haciaElLazo = -1;
}

std::vector<int> Senales::llegadas() const {
  std::vector<int> todas;
  unsigned char byte = 0;
  while (::read(lectura_.numero(), &byte, 1) == 1) todas.push_back(byte);
  return todas;
}

void Senales::detenerse() const {
  struct sigaction deFabrica{};
  deFabrica.sa_handler = SIG_DFL;
  ::sigaction(SIGTSTP, &deFabrica, nullptr);
  ::kill(0, SIGTSTP);
  auto const accion = anotando();
  ::sigaction(SIGTSTP, &accion, nullptr);
}

}  // namespace zorve::tui
