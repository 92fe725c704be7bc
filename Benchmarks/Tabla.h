#pragma once

#include <algorithm>
#include <chrono>
#include <string>

namespace zorve::medir {

/// Milliseconds that `hacer` takes.
template <class F>
[[nodiscard]] double milisegundos(F&& hacer) {
  auto const antes = std::chrono::steady_clock::now();
  hacer();
  return std::chrono::duration<double, std::milli>{std::chrono::steady_clock::now() - antes}.count();
}

/// Milliseconds of processor time that all threads of this program have used.
[[nodiscard]] double procesador();

/// The best of several runs: what else the machine does only ever adds to a time.
struct Mejor {
  double ms = 1e300;
  double msDeProcesador = 1e300;
  template <class F>
  void otra(F&& hacer) {
    auto const antes = procesador();
    ms = std::min(ms, milisegundos(hacer));
    msDeProcesador = std::min(msDeProcesador, procesador() - antes);
  }
};

/// Printing of results, one line each.
namespace tabla {

void titulo(std::string const& texto);
/// A figure beside its yardstick: what was measured, what it is compared with, their ratio, and the most
/// that the ratio may be.
void razon(std::string const& que, double medido, double vara, std::string const& unidad, double tope);
/// A figure with an upper limit of its own.
void tope(std::string const& que, double medido, std::string const& unidad, double maximo);
/// A figure with a lower limit of its own.
void minimo(std::string const& que, double medido, std::string const& unidad, double minimo);
/// A figure without a target.
void dato(std::string const& que, double medido, std::string const& unidad);
/// A figure without a target beside another: how many times as long it takes.
void frente(std::string const& que, double medido, double propio, std::string const& unidad);

}  // namespace tabla
}  // namespace zorve::medir
