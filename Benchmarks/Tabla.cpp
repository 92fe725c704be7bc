#include "Tabla.h"

#include <sys/resource.h>

#include <cstdio>

namespace zorve::medir {

double procesador() {
  struct rusage uso{};
  (void)::getrusage(RUSAGE_SELF, &uso);
  auto const ms = [](timeval const& t) {
    return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_usec) / 1e3;
  };
  return ms(uso.ru_utime) + ms(uso.ru_stime);
}

namespace tabla {

namespace {
char const* juicio(bool cumple) { return cumple ? "ok" : "MISSED"; }
}  // namespace

void titulo(std::string const& texto) { (void)std::printf("\n%s\n", texto.c_str()); }

void razon(std::string const& que, double medido, double vara, std::string const& unidad, double tope) {
  auto const cociente = medido / vara;
  (void)std::printf("  %-44s %9.2f %-4s  against %9.2f  ratio %6.3f  target <= %5.2f  %s\n", que.c_str(),
                    medido, unidad.c_str(), vara, cociente, tope, juicio(cociente <= tope));
}

void tope(std::string const& que, double medido, std::string const& unidad, double maximo) {
  (void)std::printf("  %-44s %9.2f %-4s  %17s  ratio %6.3f  target <= %5.0f  %s\n", que.c_str(), medido,
                    unidad.c_str(), "", medido / maximo, maximo, juicio(medido <= maximo));
}

void minimo(std::string const& que, double medido, std::string const& unidad, double minimo) {
  (void)std::printf("  %-44s %9.2f %-4s  %17s  ratio %6.3f  target >= %5.0f  %s\n", que.c_str(), medido,
                    unidad.c_str(), "", medido / minimo, minimo, juicio(medido >= minimo));
}

void dato(std::string const& que, double medido, std::string const& unidad) {
  (void)std::printf("  %-44s %9.2f %-4s\n", que.c_str(), medido, unidad.c_str());
}

void frente(std::string const& que, double medido, double propio, std::string const& unidad) {
  (void)std::printf("  %-44s %9.2f %-4s  against %9.2f  ratio %6.1f\n", que.c_str(), medido, unidad.c_str(),
                    propio, medido / propio);
}

}  // namespace tabla
}  // namespace zorve::medir
