#pragma once

#include <functional>
#include <stdexcept>

#include <sys/wait.h>
#include <unistd.h>

namespace zorve::dobles {

/// Whether `prueba` holds in a process that is wholly an ordinary user's: real, effective and saved user.
/// Started by an ordinary user, it is that one's.
[[nodiscard]] inline bool comoOtroUsuario(std::function<bool()> const& prueba) {
  constexpr ::uid_t nadie = 65534;
  auto const hijo = ::fork();
  if (hijo < 0) throw std::runtime_error("fork failed");
  if (hijo == 0) {
    bool const cambiado = ::geteuid() != 0 || (::setregid(nadie, nadie) == 0 &&
                                               ::setreuid(nadie, nadie) == 0 && ::setuid(0) != 0);
    ::_exit(cambiado && prueba() ? 0 : 1);
  }
  int estado = 0;
  while (::waitpid(hijo, &estado, 0) < 0) {
  }
  return WIFEXITED(estado) && WEXITSTATUS(estado) == 0;
}

}  // namespace zorve::dobles
