#include "ZorvePlatform/Posix/ProcesoHijo.h"

#include <fcntl.h>
#include <signal.h>  // NOLINT(modernize-deprecated-headers): sigset_t is POSIX, not C++
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <utility>

namespace zorve {

AccionesDelHijo::AccionesDelHijo(int salida, int error) {
  codigo_ = ::posix_spawn_file_actions_init(&acciones_);
  iniciadas_ = codigo_ == 0;
  anotar([&] { return ::posix_spawn_file_actions_adddup2(&acciones_, salida, STDOUT_FILENO); });
  anotar([&] {
    return error < 0 ? ::posix_spawn_file_actions_addopen(&acciones_, STDERR_FILENO, "/dev/null", O_WRONLY, 0)
                     : ::posix_spawn_file_actions_adddup2(&acciones_, error, STDERR_FILENO);
  });
  anotar(
      [&] { return ::posix_spawn_file_actions_addopen(&acciones_, STDIN_FILENO, "/dev/null", O_RDONLY, 0); });
#if defined(__GLIBC__)
  anotar([&] { return ::posix_spawn_file_actions_addclosefrom_np(&acciones_, STDERR_FILENO + 1); });
#endif
}

AccionesDelHijo::~AccionesDelHijo() {
  if (iniciadas_) ::posix_spawn_file_actions_destroy(&acciones_);
}

#if defined(__GLIBC__)
void AccionesDelHijo::empezarEn(std::string const& directorio) {
  anotar([&] { return ::posix_spawn_file_actions_addchdir_np(&acciones_, directorio.c_str()); });
}
#endif

AtributosDelHijo::AtributosDelHijo(unsigned ademas) {
  codigo_ = ::posix_spawnattr_init(&atributos_);
  iniciados_ = codigo_ == 0;
  sigset_t normales{};
  sigset_t ninguna{};
  sigfillset(&normales);
  sigdelset(&normales, SIGKILL);
  sigdelset(&normales, SIGSTOP);
  sigemptyset(&ninguna);
  unsigned todas = ademas | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK;
#if defined(POSIX_SPAWN_CLOEXEC_DEFAULT)
  todas |= POSIX_SPAWN_CLOEXEC_DEFAULT;
#endif
  anotar([&] { return ::posix_spawnattr_setsigdefault(&atributos_, &normales); });
  anotar([&] { return ::posix_spawnattr_setsigmask(&atributos_, &ninguna); });
  anotar([&] { return ::posix_spawnattr_setflags(&atributos_, static_cast<short>(todas)); });
}

AtributosDelHijo::~AtributosDelHijo() {
  if (iniciados_) ::posix_spawnattr_destroy(&atributos_);
}

std::expected<pid_t, int> empezarHijo(Arranque arranque) {
  AccionesDelHijo acciones{arranque.salida, arranque.error};
#if defined(__GLIBC__)
  if (!arranque.directorio.empty()) acciones.empezarEn(arranque.directorio);
#endif
  AtributosDelHijo const atributos{arranque.ademas};
  if (int const codigo = std::max(acciones.codigo(), atributos.codigo()); codigo != 0) {
    return std::unexpected{codigo};
  }
  arranque.args.insert(arranque.args.begin(), arranque.ruta);
  pid_t pid = 0;
  int const codigo = ::posix_spawn(&pid, arranque.ruta.c_str(), acciones.puntero(), atributos.puntero(),
                                   punteros(arranque.args).data(), punteros(arranque.entorno).data());
  if (codigo != 0) return std::unexpected{codigo};
  return pid;
}

void recordarALosHijos() { (void)std::signal(SIGCHLD, SIG_DFL); }

std::vector<char*> punteros(std::vector<std::string>& textos) {
  std::vector<char*> resultado;
  resultado.reserve(textos.size() + 1);
  for (auto& texto : textos) resultado.push_back(texto.data());
  resultado.push_back(nullptr);
  return resultado;
}

}  // namespace zorve
