#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "Home.h"
#include "Proceso.h"
#include "Tabla.h"
#include "ZorveCore/Lectura/HistoryStore.h"
#include "ZorvePlatform/Posix/ArchivosPosix.h"

namespace {

using namespace zorve;
using namespace zorve::medir;

constexpr std::size_t sesiones = 200;

/// A history of `lineas` lines of `sesiones` sessions.
std::string historia(std::size_t lineas) {
  Home const home{.nombre = "history-" + std::to_string(lineas),
                  .transcripciones = sesiones,
                  .bytes = sesiones * 4'096,
                  .iguales = true,
                  .lineasDeHistoria = lineas};
  return home.preparar() + "/.claude/history.jsonl";
}

void cargar(std::string const& ruta, std::size_t cuantas) {
  ArchivosPosix archivos;
  auto const cargada = HistoryStore::cargar(archivos, ruta);
  if (cargada && cargada->entradas.size() == cuantas && cargada->lineasIlegibles == 0) return;
  (void)std::fprintf(stderr, "wrong result: %s\n", ruta.c_str());
  std::_Exit(1);
}

Mejor medida(std::string const& ruta, std::size_t cuantas, int veces) {
  Mejor mejor;
  for (int vez = 0; vez < veces; ++vez) mejor.otra([&] { cargar(ruta, cuantas); });
  return mejor;
}

void medirRapidez() {
  auto const home = homeGrande(Forma::actual);
  auto const ruta = home.preparar() + "/.claude/history.jsonl";
  auto const megabytes = static_cast<double>(std::filesystem::file_size(ruta)) / 1e6;
  tabla::titulo("History of 30,000 lines, one thread");
  auto const mejor = medida(ruta, home.transcripciones, 25);
  tabla::dato("size", megabytes, "MB");
  tabla::dato("load", mejor.ms, "ms");
  tabla::minimo("load", megabytes / mejor.ms * 1e3, "MB/s", 600);
  tabla::minimo("load, processor time", megabytes / mejor.msDeProcesador * 1e3, "MB/s", 600);
}

void medirLinealidad() {
  auto const corta = historia(3'000);
  auto const larga = historia(300'000);
  tabla::titulo("History of 3,000 and of 300,000 lines, 200 sessions each");
  auto const deCorta = medida(corta, sesiones, 50);
  auto const deLarga = medida(larga, sesiones, 10);
  tabla::razon("300,000 lines against 3,000 (x 100)", deLarga.ms, deCorta.ms * 100, "ms", 1.2);
  tabla::razon("the same, processor time", deLarga.msDeProcesador, deCorta.msDeProcesador * 100, "ms", 1.2);
  auto const memoriaDeCorta = aparte([&] { cargar(corta, sesiones); }).mebibytes;
  auto const memoriaDeLarga = aparte([&] { cargar(larga, sesiones); }).mebibytes;
  tabla::razon("peak memory, 300,000 lines against 3,000", memoriaDeLarga, memoriaDeCorta, "MiB", 1.2);
}

}  // namespace

int main() {
  medirRapidez();
  medirLinealidad();
  return 0;
}
