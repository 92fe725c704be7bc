#include "Vara.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <memory>
#include <string_view>
#include <thread>
#include <vector>

namespace zorve::medir {

namespace {

constexpr std::int64_t ventana = 262'144;

std::vector<std::string> nombresEn(std::string const& ruta) {
  std::unique_ptr<DIR, int (*)(DIR*)> const carpeta{::opendir(ruta.c_str()), ::closedir};
  std::vector<std::string> nombres;
  if (!carpeta) return nombres;
  while (dirent const* entrada = ::readdir(carpeta.get())) {
    if (entrada->d_name[0] != '.') nombres.push_back(ruta + "/" + entrada->d_name);
  }
  return nombres;
}

std::uint64_t leerUna(std::string const& ruta, std::vector<char>& memoria, std::int64_t tamano) {
  int const descriptor = ::open(ruta.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) return 0;
  auto const inicio = std::max<std::int64_t>(tamano - ventana, 0);
  auto leidos = ::pread(descriptor, memoria.data(), memoria.size(), inicio);
  if (inicio > 0) leidos += ::pread(descriptor, memoria.data(), memoria.size(), 0);
  ::close(descriptor);
  return static_cast<std::uint64_t>(leidos);
}

}  // namespace

Vara leerVentanas(std::string const& raiz) {
  std::vector<std::string> rutas;
  for (auto const& carpeta : nombresEn(raiz)) {
    struct stat estado{};
    if (::lstat(carpeta.c_str(), &estado) != 0 || !S_ISDIR(estado.st_mode)) continue;
    for (auto& ruta : nombresEn(carpeta)) rutas.push_back(std::move(ruta));
  }
  std::atomic<std::size_t> siguiente{0};
  std::atomic<std::uint64_t> bytes{0};
  std::atomic<std::uint64_t> deLargos{0};
  auto const trabajar = [&] {
    std::vector<char> memoria(ventana);
    for (auto i = siguiente++; i < rutas.size(); i = siguiente++) {
      struct stat estado{};
      if (::lstat(rutas[i].c_str(), &estado) != 0) continue;
      auto const leidos = leerUna(rutas[i], memoria, estado.st_size);
      bytes += leidos;
      if (estado.st_size > 65'536) deLargos += leidos;
    }
  };
  std::vector<std::thread> otros;
  for (auto n = std::thread::hardware_concurrency(); n > 1; --n) otros.emplace_back(trabajar);
  trabajar();
  for (auto& hilo : otros) hilo.join();
  return {rutas.size(), bytes, deLargos};
}

void olvidarCache(std::string const& raiz) {
  ::sync();
  for (auto const& entrada : std::filesystem::recursive_directory_iterator{raiz}) {
    if (!entrada.is_regular_file()) continue;
    int const descriptor = ::open(entrada.path().c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) continue;
#if defined(POSIX_FADV_DONTNEED)
    ::posix_fadvise(descriptor, 0, 0, POSIX_FADV_DONTNEED);
#endif
    ::close(descriptor);
  }
}

}  // namespace zorve::medir
