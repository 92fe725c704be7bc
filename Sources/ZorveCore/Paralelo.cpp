#include "ZorveCore/Paralelo.h"

#include <algorithm>
#include <system_error>
#include <thread>
#include <vector>

namespace zorve {

std::size_t hilosPara(std::size_t tareas, std::size_t porHilo) {
  if (tareas < 2 * porHilo) return 1;
  return std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, tareas / porHilo);
}

void ladoALado(std::size_t hilos, std::function<void()> const& trabajador) {
  std::vector<std::thread> otros;
  otros.reserve(hilos);
  try {
    while (otros.size() + 1 < hilos) otros.emplace_back(trabajador);
  } catch (std::system_error const&) {
    // Out of threads: those that run do all of the work.
  }
  trabajador();
  for (auto& hilo : otros) hilo.join();
}

}  // namespace zorve
