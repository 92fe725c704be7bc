#include "ZorvePlatform/Posix/Flujo.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace zorve {

namespace {

using Reloj = std::chrono::steady_clock;

/// Waits until something can be read; 0, or an errno value.
int esperarHasta(int descriptor, Reloj::time_point limite) {
  for (;;) {
    auto const resto = std::chrono::ceil<std::chrono::milliseconds>(limite - Reloj::now()).count();
    pollfd esperado{descriptor, POLLIN, 0};
    int const listos = ::poll(&esperado, 1, static_cast<int>(std::max<std::int64_t>(resto, 0)));
    if (listos > 0) return 0;
    if (listos == 0) return ETIMEDOUT;
    if (errno != EINTR) return errno;
  }
}

}  // namespace

std::expected<std::string, int> leerHastaElFin(int descriptor, TopesDeLectura const& topes) {
  std::string todo;
  std::array<char, 65536> trozo{};
  for (;;) {
    int const espera = topes.limite ? esperarHasta(descriptor, *topes.limite) : 0;
    if (espera != 0) return std::unexpected{espera};
    auto const n = ::read(descriptor, trozo.data(), trozo.size());
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return std::unexpected{errno};
    if (n == 0) return todo;
    todo.append(trozo.data(), static_cast<std::size_t>(n));
    if (todo.size() > topes.bytes) return std::unexpected{EFBIG};
  }
}

int escribirTodo(int descriptor, std::string_view texto) {
  while (!texto.empty()) {
    auto const n = ::write(descriptor, texto.data(), texto.size());
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return errno;
    texto.remove_prefix(static_cast<std::size_t>(n));
  }
  return 0;
}

}  // namespace zorve
