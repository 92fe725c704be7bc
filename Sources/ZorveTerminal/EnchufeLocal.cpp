#include "ZorveTerminal/EnchufeLocal.h"

#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <iterator>
#include <utility>

namespace zorve::ayudante {

namespace {

timeval comoTimeval(std::chrono::milliseconds plazo) {
  auto const segundos = std::chrono::floor<std::chrono::seconds>(plazo);
  return {.tv_sec = segundos.count(), .tv_usec = std::chrono::microseconds{plazo - segundos}.count()};
}

}  // namespace

Descriptor conectarA(std::string_view nombre, std::chrono::milliseconds plazo) {
  sockaddr_un direccion{};
  direccion.sun_family = AF_UNIX;
  if (nombre.empty() || nombre.size() >= sizeof direccion.sun_path) return {};
  std::ranges::copy(nombre, std::begin(direccion.sun_path));
  auto const abstracto = nombre.front() == '@';
  if (abstracto) direccion.sun_path[0] = '\0';
  Descriptor enchufe{::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)};
  auto const hasta = comoTimeval(plazo);
  ::setsockopt(enchufe.numero(), SOL_SOCKET, SO_RCVTIMEO, &hasta, sizeof hasta);
  ::setsockopt(enchufe.numero(), SOL_SOCKET, SO_SNDTIMEO, &hasta, sizeof hasta);
  auto const largo = offsetof(sockaddr_un, sun_path) + nombre.size() + (abstracto ? 0 : 1);
  auto const* const generica = reinterpret_cast<sockaddr const*>(&direccion);
  auto const dice = ::connect(enchufe.numero(), generica, static_cast<socklen_t>(largo));
  return dice == 0 ? std::move(enchufe) : Descriptor{};
}

pid_t quienEscucha(Descriptor const& enchufe) {
  ucred quien{};
  socklen_t largo = sizeof quien;
  bool const sabido = ::getsockopt(enchufe.numero(), SOL_SOCKET, SO_PEERCRED, &quien, &largo) == 0;
  return sabido && quien.uid == ::geteuid() ? quien.pid : 0;
}

bool escribirTodo(Descriptor const& enchufe, std::string_view texto) {
  while (!texto.empty()) {
    auto const n = ::send(enchufe.numero(), texto.data(), texto.size(), MSG_NOSIGNAL);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    texto.remove_prefix(static_cast<std::size_t>(n));
  }
  return true;
}

bool leerTodo(Descriptor const& enchufe, std::span<char> destino) {
  while (!destino.empty()) {
    auto const n = ::read(enchufe.numero(), destino.data(), destino.size());
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    destino = destino.subspan(static_cast<std::size_t>(n));
  }
  return true;
}

}  // namespace zorve::ayudante
