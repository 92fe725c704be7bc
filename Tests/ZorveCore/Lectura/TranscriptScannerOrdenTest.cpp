#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "ZorveCore/Lectura/Paralelo.h"
#include "ZorveCore/Lectura/Transcripciones.h"

namespace zorve {
namespace {

using testing::IsEmpty;
using testing::SizeIs;
using TranscriptScanner::escanear;

/// A home in memory whose operations take their time, so that files are done in any order.
class ArchivosDespaciosos final : public Archivos {
 public:
  struct Entrada {
    std::string texto;
    int falloAlAbrir = 0;
    int falloDeAtributos = 0;
    double mtime = 0;
  };
  std::map<std::string, std::vector<std::string>> carpetas;
  std::map<std::string, Entrada> entradas;
  /// Folders that nobody may list.
  std::set<std::string> soloAtributos;

  [[nodiscard]] std::expected<std::unique_ptr<ArchivoAbierto>, FalloDelSistema> abrir(
      std::string const& ruta) override {
    demorar();
    auto const& entrada = entradas.at(ruta);
    if (entrada.falloAlAbrir != 0) return std::unexpected{FalloDelSistema::deErrno(entrada.falloAlAbrir)};
    return std::make_unique<Abierto>(entrada.texto);
  }
  [[nodiscard]] std::expected<Atributos, FalloDelSistema> atributos(std::string const& ruta) override {
    if (carpetas.contains(ruta) || soloAtributos.contains(ruta))
      return Atributos{ClaseDeArchivo::carpeta, 0, {}};
    demorar();
    auto const& entrada = entradas.at(ruta);
    if (entrada.falloDeAtributos != 0) {
      return std::unexpected{FalloDelSistema::deErrno(entrada.falloDeAtributos)};
    }
    return Atributos{ClaseDeArchivo::regular, static_cast<std::int64_t>(entrada.texto.size()),
                     Fecha{std::chrono::duration<double>{entrada.mtime}}};
  }
  [[nodiscard]] std::expected<std::vector<std::string>, FalloDelSistema> listar(
      std::string const& ruta) override {
    if (!carpetas.contains(ruta)) return std::unexpected{FalloDelSistema::deErrno(EACCES)};
    return carpetas.at(ruta);
  }
  [[nodiscard]] bool existe(std::string const& ruta) override {
    return carpetas.contains(ruta) || entradas.contains(ruta);
  }

 private:
  class Abierto final : public ArchivoAbierto {
   public:
    explicit Abierto(std::string const& texto) : texto_{texto} {}
    [[nodiscard]] std::expected<std::size_t, FalloDelSistema> leer(std::int64_t desde,
                                                                   std::span<char> destino) override {
      demorar();
      return texto_.copy(destino.data(), destino.size(), static_cast<std::size_t>(desde));
    }
    [[nodiscard]] std::expected<std::int64_t, FalloDelSistema> tamano() override {
      return static_cast<std::int64_t>(texto_.size());
    }

   private:
    std::string const& texto_;
  };

  static void demorar() {
    static thread_local std::minstd_rand azar{std::random_device{}()};
    for (std::atomic<unsigned> vueltas = azar() % 256; vueltas > 0; --vueltas) {
    }
  }
};

std::string enCarpeta(std::string carpeta, std::string const& nombre) {
  return carpeta.append("/").append(nombre);
}

void revolver(ArchivosDespaciosos& home) {
  home.carpetas["/r"] = {"p0", "p1", "p2", "p3"};
  for (std::size_t p = 0; p < 4; ++p) {
    auto const proyecto = "/r/p" + std::to_string(p);
    auto& nombres = home.carpetas[proyecto];
    for (std::size_t n = 0; n < 30; ++n) {
      auto const nombre = uuid(n * 7919 % 1000 + p) + ".jsonl";
      nombres.push_back(nombre);
      home.entradas[enCarpeta(proyecto, nombre)] = {.texto = R"({"type":"ai-title","aiTitle":")" +
                                                             std::to_string(n) + R"(","cwd":"/)" +
                                                             std::to_string(p) + "\"}",
                                                    .falloAlAbrir = n % 5 == 0 ? EACCES : 0,
                                                    .falloDeAtributos = n % 7 == 0 ? EIO : 0,
                                                    .mtime = static_cast<double>(n % 3)};
    }
  }
}

TEST(TranscriptScannerOrden, elResultadoEsElMismoAcabeQuienAcabePrimero) {
  ArchivosDespaciosos home;
  revolver(home);
  auto const primero = escanear(home, "/r");
  EXPECT_THAT(primero.transcripciones, SizeIs(4 * 25));
  EXPECT_THAT(primero.errores, SizeIs(4 * (5 + 5)));
  for (int vez = 0; vez < 1000; ++vez) ASSERT_EQ(escanear(home, "/r"), primero) << "run " << vez;
}

TEST(TranscriptScannerOrden, losErroresYLosEmpatesEstanEnElOrdenDelListado) {
  ArchivosDespaciosos home;
  revolver(home);
  auto const resultado = escanear(home, "/r");
  std::vector<std::string> esperados;
  std::vector<std::string> rutas[3];
  for (auto const& proyecto : home.carpetas.at("/r")) {
    for (auto const& nombre : home.carpetas.at("/r/" + proyecto)) {
      auto const ruta = enCarpeta(enCarpeta("/r", proyecto), nombre);
      auto const& entrada = home.entradas.at(ruta);
      if (entrada.falloDeAtributos != 0) {
        esperados.push_back("Could not read the size or date of " + ruta);
        continue;
      }
      if (entrada.falloAlAbrir != 0) {
        esperados.push_back("Could not read the ai-title of " + ruta + ": Permission denied");
      }
      rutas[2 - static_cast<int>(entrada.mtime)].push_back(ruta);
    }
  }
  std::vector<std::string> esperadas;
  for (auto const& grupo : rutas) esperadas.insert(esperadas.end(), grupo.begin(), grupo.end());
  std::vector<std::string> halladas;
  halladas.reserve(resultado.transcripciones.size());
  for (auto const& t : resultado.transcripciones) halladas.push_back(t.ruta);
  EXPECT_EQ(halladas, esperadas);
  EXPECT_EQ(mensajes(resultado), esperados);
}

TEST(TranscriptScannerOrden, elErrorDeUnaCarpetaEstaDondeSeHallo) {
  ArchivosDespaciosos home;
  home.carpetas["/r"] = {"p0", "cerrada", "p1"};
  home.carpetas["/r/p0"] = {uuid(1) + ".jsonl"};
  home.carpetas["/r/p1"] = {uuid(2) + ".jsonl"};
  home.soloAtributos.insert("/r/cerrada");
  for (auto const* const carpeta : {"/r/p0", "/r/p1"}) {
    home.entradas[enCarpeta(carpeta, home.carpetas[carpeta].front())] = {.falloDeAtributos = EIO};
  }
  EXPECT_THAT(mensajes(escanear(home, "/r")),
              testing::ElementsAre("Could not read the size or date of /r/p0/" + uuid(1) + ".jsonl",
                                   "Could not list /r/cerrada: Permission denied",
                                   "Could not read the size or date of /r/p1/" + uuid(2) + ".jsonl"));
}

TEST(TranscriptScannerOrden, losHilosSeRepartenLosArchivosYCadaUnoSeLeeUnaVez) {
  ArchivosDespaciosos home;
  revolver(home);
  auto const deUno = escanear(home, "/r");
  TranscriptScanner::Escaneo escaneo{home, "/r"};
  ladoALado(4, [&] { escaneo.leer(); });
  EXPECT_EQ(escaneo.reunir(), deUno);
}

TEST(LargoTranscriptScanner, cienMilTranscripcionesSeHallanTodas) {
  ArchivosDespaciosos home;
  for (std::size_t p = 0; p < 100; ++p) {
    auto const slug = "p" + std::to_string(p);
    home.carpetas["/r"].push_back(slug);
    auto& nombres = home.carpetas["/r/" + slug];
    for (std::size_t n = 0; n < 1000; ++n) {
      nombres.push_back(uuid(p * 1000 + n) + ".jsonl");
      home.entradas["/r/" + slug + "/" + nombres.back()] = {.texto = contenido,
                                                            .mtime = static_cast<double>(p * 1000 + n)};
    }
  }
  auto const resultado = escanear(home, "/r");
  ASSERT_THAT(resultado.transcripciones, SizeIs(100'000));
  EXPECT_THAT(resultado.errores, IsEmpty());
  for (std::size_t i = 0; i < 100'000; ++i) {
    ASSERT_EQ(resultado.transcripciones[i].sessionId, uuid(99'999 - i));
    ASSERT_EQ(resultado.transcripciones[i].aiTitle, "t");
  }
}

}  // namespace
}  // namespace zorve
