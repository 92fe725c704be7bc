#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "Home.h"
#include "Proceso.h"
#include "Tabla.h"
#include "ZorveCore/Lectura/HistoryStore.h"
#include "ZorveCore/Lectura/SessionIndex.h"
#include "ZorvePlatform/Posix/ArchivosPosix.h"
#include "ZorvePlatform/Posix/VidaDeProcesosPosix.h"

namespace {

using namespace zorve;
using namespace zorve::medir;

constexpr int veces = 25;

Proceso mejorDe(std::vector<std::string> const& palabras, int cuantas) {
  auto mejor = correr(palabras);
  for (int vez = 1; vez < cuantas; ++vez) {
    if (auto const otra = correr(palabras); otra.ms < mejor.ms) mejor = otra;
  }
  if (mejor.codigo == 0) return mejor;
  (void)std::fprintf(stderr, "failed (%d): %s\n", mejor.codigo, palabras.front().c_str());
  std::exit(1);
}

Proceso lista(std::string const& home, int cuantas) {
  return mejorDe({ZORVECTL, "list", "--json", "--home", home}, cuantas);
}

void medirConstruir(std::string const& home) {
  ArchivosPosix archivos;
  VidaDeProcesosPosix procesos;
  auto const donde = SessionIndex::ubicacionesPorDefecto(home);
  Mejor escaneo;
  Mejor historia;
  Mejor indice;
  for (int vez = 0; vez < veces; ++vez) {
    escaneo.otra([&] { (void)TranscriptScanner::escanear(archivos, donde.transcripciones); });
    historia.otra([&] { (void)HistoryStore::cargar(archivos, donde.history); });
    indice.otra([&] { (void)SessionIndex::construir(archivos, procesos, donde); });
  }
  tabla::titulo(
      "The whole index on 2,000 transcripts and 30,000 history lines (against the scan plus the history)");
  tabla::razon("index", indice.ms, escaneo.ms + historia.ms, "ms", 1.0);
  tabla::razon("index, processor time", indice.msDeProcesador,
               escaneo.msDeProcesador + historia.msDeProcesador, "ms", 1.05);
}

double medirZorvectl(std::string const& grande) {
  Home const chica{
      .nombre = "ten-sessions", .transcripciones = 10, .bytes = 10 * 100'000, .lineasDeHistoria = 100};
  tabla::titulo("zorvectl list, the whole process");
  auto const deGrande = lista(grande, 10);
  tabla::tope("peak memory on the big home", deGrande.mebibytes, "MiB", 40);
  tabla::dato("time on the big home", deGrande.ms, "ms");
  tabla::tope("time on a home of ten sessions", lista(chica.preparar(), 50).ms, "ms", 10);
  return deGrande.ms;
}

void medirLoUsual(std::string const& home, double propio) {
  struct Rival {
    std::string programa;
    std::string que;
    std::string orden;
  };
  auto const proyectos = "'" + TranscriptScanner::raizPorDefecto(home) + "'";
  auto const historia = "'" + SessionIndex::historyPorDefecto(home) + "'";
  std::string const patron = R"('"aiTitle":"[^"]*"')";
  std::vector<Rival> const rivales{
      {"grep", "grep for the titles", "LC_ALL=C grep -rhoE " + patron + " " + proyectos + " | cat"},
      {"rg", "ripgrep for the titles",
       "rg --no-filename --no-line-number -o " + patron + " " + proyectos + " | cat"},
      {"jq", "jq over the history",
       "jq -s -c 'group_by(.sessionId)[] | {id: .[0].sessionId, n: length, last: max_by(.timestamp)}' " +
           historia}};
  tabla::titulo("What one would use instead (against zorvectl list of the same home)");
  for (auto const& rival : rivales) {
    if (!hayPrograma(rival.programa)) {
      tabla::titulo("  " + rival.programa + " is not installed");
      continue;
    }
    tabla::frente(rival.que, mejorDe({"/bin/sh", "-c", rival.orden}, 3).ms, propio, "ms");
  }
}

}  // namespace

int main() {
  auto const grande = homeGrande(Forma::actual).preparar();
  medirConstruir(grande);
  medirLoUsual(grande, medirZorvectl(grande));
  return 0;
}
