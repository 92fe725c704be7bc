#include "ZorveCore/Paralelo.h"

#include <algorithm>
#include <system_error>
#include <thread>
#include <vector>

namespace zorve {

namespace {

bool unoMas(std::vector<std::thread>& hilos, std::function<void()> const& trabajador) {
  try {
    hilos.emplace_back(trabajador);
    return true;
  } catch (std::system_error const&) {
    return false;
  }
}

}  // namespace

std::size_t hilosPara(std::size_t tareas, std::size_t porHilo) {
  if (tareas < 2 * porHilo) return 1;
  return std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, tareas / porHilo);
}

void ladoALado(std::size_t hilos, std::function<void()> const& trabajador) {
  std::vector<std::thread> otros;
  otros.reserve(hilos);
  while (otros.size() + 1 < hilos && unoMas(otros, trabajador)) {
  }
  trabajador();
  for (auto& hilo : otros) hilo.join();
}

}  // namespace zorve
