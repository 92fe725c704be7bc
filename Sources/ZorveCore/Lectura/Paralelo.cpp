#include "ZorveCore/Lectura/Paralelo.h"

#include <algorithm>
#include <exception>
#include <functional>
#include <mutex>
#include <new>
#include <system_error>
#include <thread>
#include <vector>

namespace zorve {

namespace {

/// Threads that are waited for, come what may.
class Hilos {
 public:
  explicit Hilos(std::size_t cuantos) { hilos_.reserve(cuantos); }
  Hilos(Hilos const&) = delete;
  Hilos& operator=(Hilos const&) = delete;
  ~Hilos() {
    for (auto& hilo : hilos_) hilo.join();
  }

  [[nodiscard]] std::size_t cuantos() const { return hilos_.size(); }
  bool unoMas(std::function<void()> const& trabajo) {
    try {
      hilos_.emplace_back(std::cref(trabajo));
      return true;
    } catch (std::system_error const&) {
      return false;
    } catch (std::bad_alloc const&) {
      return false;
    }
  }

 private:
  std::vector<std::thread> hilos_;
};

/// The first thing that was thrown.
class Lanzado {
 public:
  void guardar() {
    std::scoped_lock const cierre{cerrojo_};
    if (!primero_) primero_ = std::current_exception();
  }
  void seguir() const {
    if (primero_) std::rethrow_exception(primero_);
  }

 private:
  std::mutex cerrojo_;
  std::exception_ptr primero_;
};

}  // namespace

std::size_t hilosPara(std::size_t tareas, std::size_t porHilo) {
  if (tareas < 2 * porHilo) return 1;
  return std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, tareas / porHilo);
}

void ladoALado(std::size_t hilos, std::function<void()> const& trabajador) {
  Lanzado lanzado;
  std::function<void()> const cuidado = [&] {
    try {
      trabajador();
    } catch (...) {
      lanzado.guardar();
    }
  };
  {
    Hilos otros{hilos};
    while (otros.cuantos() + 1 < hilos && otros.unoMas(cuidado)) {
    }
    cuidado();
  }
  lanzado.seguir();
}

}  // namespace zorve
