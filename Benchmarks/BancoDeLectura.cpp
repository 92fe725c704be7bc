#include <cstdio>
#include <cstdlib>
#include <string>

#include "ArchivosContados.h"
#include "Home.h"
#include "Tabla.h"
#include "Vara.h"
#include "ZorveCore/Lectura/TranscriptScanner.h"
#include "ZorvePlatform/Posix/ArchivosPosix.h"

namespace {

using namespace zorve;
using namespace zorve::medir;

constexpr int veces = 25;
constexpr double paciencia = 6'000;

struct Tiempos {
  Mejor vara;
  Mejor escaneo;
};

void comprobar(bool bien, char const* que) {
  if (bien) return;
  (void)std::fprintf(stderr, "wrong result: %s\n", que);
  std::exit(1);
}

std::string raizDe(Home const& home) { return TranscriptScanner::raizPorDefecto(home.preparar()); }

Tiempos medirCaliente(std::string const& raiz, std::size_t cuantas) {
  ArchivosPosix archivos;
  Tiempos tiempos;
  double gastado = 0;
  for (int vez = 0; vez < veces && gastado < paciencia; ++vez) {
    gastado += milisegundos([&] {
      tiempos.vara.otra([&] { comprobar(leerVentanas(raiz).archivos == cuantas, "the yardstick's files"); });
      tiempos.escaneo.otra([&] {
        auto const resultado = TranscriptScanner::escanear(archivos, raiz);
        comprobar(resultado.transcripciones.size() == cuantas && resultado.errores.empty(), "the scan");
      });
    });
  }
  return tiempos;
}

void contar(Home const& home, std::string const& raiz) {
  ArchivosPosix archivos;
  ArchivosContados contados{archivos};
  auto const resultado = TranscriptScanner::escanear(contados, raiz);
  std::size_t titulos = 0;
  for (auto const& t : resultado.transcripciones) titulos += t.aiTitle ? 1U : 0U;
  comprobar(titulos >= home.transcripciones / (home.forma == Forma::actual ? 1U : 4U), "the titles");
  auto const leido = static_cast<double>(contados.bytesDeLargos()) / 1e6;
  auto const ventanas = static_cast<double>(leerVentanas(raiz).bytesDeLargos) / 1e6;
  if (home.forma == Forma::actual) {
    tabla::razon("bytes read of files over 64 KiB", leido, ventanas, "MB", 0.1);
  } else {
    tabla::frente("bytes read of files over 64 KiB", leido, ventanas, "MB");
  }
}

void medirFrio(std::string const& raiz) {
  ArchivosPosix archivos;
  olvidarCache(raiz);
  auto const vara = milisegundos([&] { (void)leerVentanas(raiz); });
  olvidarCache(raiz);
  auto const escaneo = milisegundos([&] { (void)TranscriptScanner::escanear(archivos, raiz); });
  tabla::frente("scan, file contents not cached (once)", escaneo, vara, "ms");
}

void medirHomeGrande(Forma forma, double tope) {
  auto const home = homeGrande(forma);
  auto const raiz = raizDe(home);
  tabla::titulo("2,000 transcripts, 1.1 GB, shape \"" +
                std::string{forma == Forma::actual ? "current" : "hard"} +
                "\" (against listing, attributes and bare reads of both windows)");
  auto const tiempos = medirCaliente(raiz, home.transcripciones);
  tabla::razon("scan, cached", tiempos.escaneo.ms, tiempos.vara.ms, "ms", tope);
  tabla::razon("scan, cached, processor time", tiempos.escaneo.msDeProcesador, tiempos.vara.msDeProcesador,
               "ms", tope);
  contar(home, raiz);
  medirFrio(raiz);
}

Home deVeinteKilobytes(std::size_t cuantas) {
  return {.nombre = "even-" + std::to_string(cuantas),
          .transcripciones = cuantas,
          .bytes = cuantas * 20'480,
          .iguales = true};
}

void medirLinealidad() {
  tabla::titulo("Transcripts of 20 KiB, time for each");
  auto const pocas = medirCaliente(raizDe(deVeinteKilobytes(200)), 200).escaneo;
  auto const muchas = medirCaliente(raizDe(deVeinteKilobytes(20'000)), 20'000).escaneo;
  tabla::razon("20,000 against 200 (x 100)", muchas.ms, pocas.ms * 100, "ms", 1.2);
  tabla::razon("20,000 against 200 (x 100), processor time", muchas.msDeProcesador,
               pocas.msDeProcesador * 100, "ms", 1.2);
}

}  // namespace

int main() {
  medirHomeGrande(Forma::actual, 0.5);
  medirHomeGrande(Forma::dificil, 1.5);
  medirLinealidad();
  return 0;
}
