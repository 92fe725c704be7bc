#include "Proceso.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <stdexcept>

#include "Tabla.h"

namespace zorve::medir {

namespace {

#if defined(__APPLE__)
constexpr double unidadesPorMebibyte = 1024.0 * 1024.0;
#else
constexpr double unidadesPorMebibyte = 1024.0;
#endif

}  // namespace

Proceso aparte(std::function<void()> const& hacer) {
  Proceso proceso;
  struct rusage uso{};
  int estado = 0;
  (void)std::fflush(nullptr);
  proceso.ms = milisegundos([&] {
    auto const hijo = ::fork();
    if (hijo < 0) throw std::runtime_error("fork failed");
    if (hijo == 0) {
      hacer();
      ::_exit(0);
    }
    (void)::wait4(hijo, &estado, 0, &uso);
  });
  proceso.codigo = WIFEXITED(estado) ? WEXITSTATUS(estado) : -1;
  proceso.mebibytes = static_cast<double>(uso.ru_maxrss) / unidadesPorMebibyte;
  return proceso;
}

Proceso correr(std::vector<std::string> const& palabras) {
  return aparte([&] {
    int const nada = ::open("/dev/null", O_RDWR);
    for (int flujo = 0; flujo < 3; ++flujo) (void)::dup2(nada, flujo);
    std::vector<char*> argumentos;
    for (auto palabra : palabras) argumentos.push_back(::strdup(palabra.c_str()));
    argumentos.push_back(nullptr);
    (void)::execvp(argumentos[0], argumentos.data());
    ::_exit(127);
  });
}

bool hayPrograma(std::string const& nombre) {
  return correr({"/bin/sh", "-c", "command -v " + nombre}).codigo == 0;
}

}  // namespace zorve::medir
