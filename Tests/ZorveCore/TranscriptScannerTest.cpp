#include "ZorveCore/TranscriptScanner.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <atomic>
#include <filesystem>
#include <map>
#include <random>
#include <set>
#include <thread>

#include "Dobles/CarpetaTemporal.h"
#include "Dobles/SinPrivilegios.h"
#include "ZorvePlatform/Posix/ArchivosPosix.h"

namespace zorve {
namespace {

namespace fs = std::filesystem;
using dobles::CarpetaTemporal;
using dobles::SinPrivilegios;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;
using TranscriptScanner::escanear;

std::string uuid(std::size_t n) {
  auto const cola = std::to_string(n);
  return "0b5c7a1e-9f3d-4c2b-8a6e-" + std::string(12 - cola.size(), '0') + cola;
}

std::string const contenido = R"({"type":"user","cwd":"/p"}
{"type":"ai-title","aiTitle":"t"}
)";

void fechar(std::string const& ruta, std::int64_t segundos, long nanosegundos = 0) {
  timespec const tiempos[] = {{segundos, nanosegundos}, {segundos, nanosegundos}};
  ASSERT_EQ(::utimensat(AT_FDCWD, ruta.c_str(), tiempos, AT_SYMLINK_NOFOLLOW), 0);
}

std::vector<std::string> identificadores(TranscriptScanner::Resultado const& resultado) {
  std::vector<std::string> ids;
  for (auto const& t : resultado.transcripciones) ids.push_back(t.sessionId);
  return ids;
}

/// The part of a result that a failed comparison should show.
std::vector<std::string> mensajes(TranscriptScanner::Resultado const& resultado) {
  std::vector<std::string> textos;
  for (auto const& e : resultado.errores) textos.push_back(e.mensaje);
  return textos;
}

class TranscriptScannerTest : public testing::Test {
 protected:
  [[nodiscard]] TranscriptScanner::Resultado escaneo() { return escanear(archivos, raiz); }
  std::string transcripcion(std::string const& slug, std::string const& id,
                            std::string const& texto = contenido) const {
    return carpeta.escribir("projects/" + slug + "/" + id + ".jsonl", texto);
  }
  [[nodiscard]] std::string rutaDe(std::string const& slug, std::string const& id) const {
    return raiz + "/" + slug + "/" + id + ".jsonl";
  }
  static IndexError error(std::string const& mensaje) { return {IndexSource::transcripts, mensaje}; }

  CarpetaTemporal carpeta;
  std::string raiz = carpeta.carpeta("projects");
  ArchivosPosix archivos;
};

TEST_F(TranscriptScannerTest, laRaizPorDefectoEstaBajoElDirectorioDeInicio) {
  EXPECT_EQ(TranscriptScanner::raizPorDefecto("/home/u"), "/home/u/.claude/projects");
  EXPECT_EQ(TranscriptScanner::raizPorDefecto("/"), "/.claude/projects");
}

TEST_F(TranscriptScannerTest, cadaTranscripcionTieneTodosSusCampos) {
  auto const ruta = transcripcion("-Users-x-p", uuid(1));
  fechar(ruta, 1'700'000'000, 250'000'000);
  EXPECT_EQ(escaneo(),
            (TranscriptScanner::Resultado{
                {{uuid(1), ruta, "-Users-x-p", Fecha{std::chrono::duration<double>{1'700'000'000.25}},
                  static_cast<std::int64_t>(contenido.size()), "t", "/p"}},
                {}}));
}

TEST_F(TranscriptScannerTest, unaRaizVaciaNoTieneNiTranscripcionesNiErrores) {
  EXPECT_EQ(escaneo(), TranscriptScanner::Resultado{});
}

TEST_F(TranscriptScannerTest, unaRaizAusenteEsElUnicoError) {
  EXPECT_EQ(escanear(archivos, "/no/hay"),
            (TranscriptScanner::Resultado{{}, {error("Could not list /no/hay: No such file or directory")}}));
}

TEST_F(TranscriptScannerTest, unaRaizIlegibleEsElUnicoError) {
  transcripcion("p", uuid(1));
  fs::permissions(raiz, fs::perms::none);
  SinPrivilegios const sin;
  EXPECT_EQ(escaneo(),
            (TranscriptScanner::Resultado{{}, {error("Could not list " + raiz + ": Permission denied")}}));
}

TEST_F(TranscriptScannerTest, unaRaizQueEsUnArchivoEsElUnicoError) {
  auto const ruta = carpeta.escribir("archivo", "x");
  EXPECT_EQ(escanear(archivos, ruta),
            (TranscriptScanner::Resultado{{}, {error("Could not list " + ruta + ": Not a directory")}}));
}

TEST_F(TranscriptScannerTest, unaCarpetaIlegibleEsUnErrorYLasDemasSeLeen) {
  transcripcion("cerrada", uuid(1));
  transcripcion("abierta", uuid(2));
  fs::permissions(raiz + "/cerrada", fs::perms::none);
  SinPrivilegios const sin;
  auto const resultado = escaneo();
  EXPECT_THAT(identificadores(resultado), ElementsAre(uuid(2)));
  EXPECT_THAT(resultado.errores,
              ElementsAre(error("Could not list " + raiz + "/cerrada: Permission denied")));
}

TEST_F(TranscriptScannerTest, sinAtributosSeDejaFueraConSuError) {
  transcripcion("p", uuid(1));
  fs::permissions(raiz + "/p", fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  SinPrivilegios const sin;
  auto const resultado = escaneo();
  EXPECT_THAT(resultado.transcripciones, IsEmpty());
  EXPECT_THAT(mensajes(resultado), ElementsAre("Could not read the size or date of " + rutaDe("p", uuid(1))));
}

TEST_F(TranscriptScannerTest, loQueNoSePuedeAbrirSeListaSinTituloConSuError) {
  auto const ruta = transcripcion("p", uuid(1));
  fs::permissions(ruta, fs::perms::none);
  SinPrivilegios const sin;
  auto const resultado = escaneo();
  ASSERT_THAT(resultado.transcripciones, SizeIs(1));
  EXPECT_EQ(resultado.transcripciones[0].aiTitle, std::nullopt);
  EXPECT_EQ(resultado.transcripciones[0].cwd, std::nullopt);
  EXPECT_EQ(resultado.transcripciones[0].tamanoBytes, static_cast<std::int64_t>(contenido.size()));
  EXPECT_THAT(resultado.errores,
              ElementsAre(error("Could not read the ai-title of " + ruta + ": Permission denied")));
}

TEST_F(TranscriptScannerTest, losNombresQueNoSonDeTranscripcionSePasanPorAlto) {
  for (auto const* nombre : {"notes.jsonl", "leeme.txt", ".oculto.jsonl", "x.key"}) {
    carpeta.escribir(std::string{"projects/p/"} + nombre, contenido);
  }
  carpeta.escribir("projects/p/" + uuid(1) + ".json", contenido);
  carpeta.escribir("projects/p/" + uuid(2) + ".JSONL", contenido);
  carpeta.escribir("projects/p/" + std::string(36, 'a') + ".jsonl", contenido);
  EXPECT_EQ(escaneo(), TranscriptScanner::Resultado{});
}

TEST_F(TranscriptScannerTest, lasMayusculasDelIdentificadorSeConservan) {
  transcripcion("p", "0B5C7A1E-9F3D-4C2B-8A6E-00000000000F");
  EXPECT_THAT(identificadores(escaneo()), ElementsAre("0B5C7A1E-9F3D-4C2B-8A6E-00000000000F"));
}

TEST_F(TranscriptScannerTest, elMismoIdentificadorEnDosCarpetasSonDosTranscripciones) {
  transcripcion("p", uuid(1));
  transcripcion("q", uuid(1));
  auto const resultado = escaneo();
  std::set<std::string> slugs;
  for (auto const& t : resultado.transcripciones) slugs.insert(t.slug);
  EXPECT_THAT(identificadores(resultado), ElementsAre(uuid(1), uuid(1)));
  EXPECT_THAT(slugs, UnorderedElementsAre("p", "q"));
}

TEST_F(TranscriptScannerTest, enLaRaizMismaNoSeBusca) {
  carpeta.escribir("projects/" + uuid(1) + ".jsonl", contenido);
  EXPECT_EQ(escaneo(), TranscriptScanner::Resultado{});
}

TEST_F(TranscriptScannerTest, enSubcarpetasNoSeBusca) {
  carpeta.escribir("projects/p/subagents/" + uuid(1) + ".jsonl", contenido);
  carpeta.escribir("projects/p/" + uuid(2) + "/" + uuid(3) + ".jsonl", contenido);
  EXPECT_EQ(escaneo(), TranscriptScanner::Resultado{});
}

TEST_F(TranscriptScannerTest, unaCarpetaOcultaSePasaPorAlto) {
  transcripcion(".oculta", uuid(1));
  EXPECT_EQ(escaneo(), TranscriptScanner::Resultado{});
}

TEST_F(TranscriptScannerTest, unEnlaceAUnaCarpetaNoEsUnaCarpeta) {
  carpeta.escribir("fuera/" + uuid(1) + ".jsonl", contenido);
  fs::create_directory_symlink(carpeta.dentro("fuera"), raiz + "/enlace");
  EXPECT_EQ(escaneo(), TranscriptScanner::Resultado{});
}

TEST_F(TranscriptScannerTest, unaTranscripcionEnlazadaTieneElTamanoYLaFechaDelEnlace) {
  auto const fuera = carpeta.escribir("fuera.txt", contenido + std::string(300'000, '\n'));
  carpeta.carpeta("projects/p");
  fs::create_symlink(fuera, rutaDe("p", uuid(1)));
  fechar(rutaDe("p", uuid(1)), 1'000);
  auto const resultado = escaneo();
  ASSERT_THAT(resultado.transcripciones, SizeIs(1));
  EXPECT_EQ(resultado.transcripciones[0].tamanoBytes, static_cast<std::int64_t>(fuera.size()));
  EXPECT_EQ(resultado.transcripciones[0].mtime, Fecha{std::chrono::seconds{1'000}});
  EXPECT_EQ(resultado.transcripciones[0].aiTitle, "t");
}

TEST_F(TranscriptScannerTest, unEnlaceRotoSeListaConSuError) {
  carpeta.carpeta("projects/p");
  fs::create_symlink("/no/hay", rutaDe("p", uuid(1)));
  auto const resultado = escaneo();
  EXPECT_THAT(identificadores(resultado), ElementsAre(uuid(1)));
  EXPECT_THAT(resultado.errores, ElementsAre(error("Could not read the ai-title of " + rutaDe("p", uuid(1)) +
                                                   ": No such file or directory")));
}

TEST_F(TranscriptScannerTest, loQueNoEsUnArchivoCorrienteSeListaConSuErrorYNoSeEspera) {
  carpeta.carpeta("projects/p");
  ASSERT_EQ(::mkfifo(rutaDe("p", uuid(1)).c_str(), 0644), 0);
  fs::create_directory(rutaDe("p", uuid(2)));
  fs::create_symlink("/dev/zero", rutaDe("p", uuid(3)));
  auto const resultado = escaneo();
  EXPECT_THAT(identificadores(resultado), UnorderedElementsAre(uuid(1), uuid(2), uuid(3)));
  EXPECT_THAT(resultado.errores,
              UnorderedElementsAre(
                  error("Could not read the ai-title of " + rutaDe("p", uuid(1)) + ": Not a regular file"),
                  error("Could not read the ai-title of " + rutaDe("p", uuid(2)) + ": Is a directory"),
                  error("Could not read the ai-title of " + rutaDe("p", uuid(3)) + ": Not a regular file")));
  for (auto const& t : resultado.transcripciones) {
    EXPECT_EQ(t.aiTitle, std::nullopt);
    EXPECT_EQ(t.cwd, std::nullopt);
  }
}

TEST_F(TranscriptScannerTest, unZocaloSeListaConSuError) {
  carpeta.carpeta("projects/p");
  auto const antes = fs::current_path();
  fs::current_path(raiz + "/p");
  sockaddr_un direccion{};
  direccion.sun_family = AF_UNIX;
  (uuid(1) + ".jsonl").copy(direccion.sun_path, sizeof direccion.sun_path - 1);
  int const zocalo = ::socket(AF_UNIX, SOCK_STREAM, 0);
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast)
  int const ligado = ::bind(zocalo, reinterpret_cast<sockaddr const*>(&direccion), sizeof direccion);
  fs::current_path(antes);
  auto const resultado = escaneo();
  ::close(zocalo);
  ASSERT_EQ(ligado, 0);
  EXPECT_THAT(identificadores(resultado), ElementsAre(uuid(1)));
  ASSERT_THAT(resultado.errores, SizeIs(1));
  EXPECT_TRUE(resultado.errores[0].mensaje.starts_with("Could not read the ai-title of " +
                                                       rutaDe("p", uuid(1)) + ": "));
}

TEST_F(TranscriptScannerTest, losNombresQueNoSonUtf8NoEstorban) {
  carpeta.escribir("projects/p/\xff\xfe" + uuid(1).substr(2) + ".jsonl", contenido);
  carpeta.escribir("projects/\xe9t\xe9/" + uuid(2) + ".jsonl", contenido);
  auto const resultado = escaneo();
  ASSERT_THAT(identificadores(resultado), ElementsAre(uuid(2)));
  EXPECT_EQ(resultado.transcripciones[0].slug, "\xe9t\xe9");
  EXPECT_THAT(resultado.errores, IsEmpty());
}

TEST_F(TranscriptScannerTest, laMasNuevaVaPrimero) {
  for (std::size_t n = 1; n <= 5; ++n) {
    fechar(transcripcion("p" + std::to_string(n % 2), uuid(n)), static_cast<std::int64_t>(n * 7 % 5));
  }
  EXPECT_THAT(identificadores(escaneo()), ElementsAre(uuid(2), uuid(4), uuid(1), uuid(3), uuid(5)));
}

TEST_F(TranscriptScannerTest, unArchivoDeUnGigabyteEnUnaSolaLineaSeLeeEnPocaMemoria) {
  auto const ruta = transcripcion("p", uuid(1), "{\"m\":\"");
  fs::resize_file(ruta, 1ULL << 30U);
  auto const resultado = escaneo();
  ASSERT_THAT(resultado.transcripciones, SizeIs(1));
  EXPECT_EQ(resultado.transcripciones[0].tamanoBytes, 1LL << 30U);
  EXPECT_EQ(resultado.transcripciones[0].aiTitle, std::nullopt);
  EXPECT_THAT(resultado.errores, IsEmpty());
}

TEST_F(TranscriptScannerTest, despuesNoQuedaNingunArchivoAbierto) {
  for (std::size_t n = 0; n < 100; ++n) transcripcion("p", uuid(n), n % 2 == 0 ? contenido : "");
  auto const abiertos = [] {
    return std::distance(fs::directory_iterator{"/dev/fd"}, fs::directory_iterator{});
  };
  auto const antes = abiertos();
  EXPECT_THAT(escaneo().transcripciones, SizeIs(100));
  EXPECT_EQ(abiertos(), antes);
}

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

  [[nodiscard]] std::expected<std::unique_ptr<ArchivoAbierto>, FalloDelSistema> abrir(
      std::string const& ruta) override {
    demorar();
    auto const& entrada = entradas.at(ruta);
    if (entrada.falloAlAbrir != 0) return std::unexpected{FalloDelSistema::deErrno(entrada.falloAlAbrir)};
    return std::make_unique<Abierto>(entrada.texto);
  }
  [[nodiscard]] std::expected<Atributos, FalloDelSistema> atributos(std::string const& ruta) override {
    if (carpetas.contains(ruta)) return Atributos{ClaseDeArchivo::carpeta, 0, {}};
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

void revolver(ArchivosDespaciosos& casa) {
  casa.carpetas["/r"] = {"p0", "p1", "p2", "p3"};
  for (std::size_t p = 0; p < 4; ++p) {
    auto const proyecto = "/r/p" + std::to_string(p);
    auto& nombres = casa.carpetas[proyecto];
    for (std::size_t n = 0; n < 30; ++n) {
      auto const nombre = uuid(n * 7919 % 1000 + p) + ".jsonl";
      nombres.push_back(nombre);
      casa.entradas[proyecto + "/" + nombre] = {.texto = R"({"type":"ai-title","aiTitle":")" +
                                                         std::to_string(n) + R"(","cwd":"/)" +
                                                         std::to_string(p) + "\"}",
                                                .falloAlAbrir = n % 5 == 0 ? EACCES : 0,
                                                .falloDeAtributos = n % 7 == 0 ? EIO : 0,
                                                .mtime = static_cast<double>(n % 3)};
    }
  }
}

TEST(TranscriptScannerOrden, elResultadoEsElMismoAcabeQuienAcabePrimero) {
  ArchivosDespaciosos casa;
  revolver(casa);
  auto const primero = escanear(casa, "/r");
  EXPECT_THAT(primero.transcripciones, SizeIs(4 * 25));
  EXPECT_THAT(primero.errores, SizeIs(4 * (5 + 5)));
  for (int vez = 0; vez < 1000; ++vez) ASSERT_EQ(escanear(casa, "/r"), primero) << "run " << vez;
}

TEST(TranscriptScannerOrden, losErroresYLosEmpatesEstanEnElOrdenDelListado) {
  ArchivosDespaciosos casa;
  revolver(casa);
  auto const resultado = escanear(casa, "/r");
  std::vector<std::string> esperados;
  std::vector<std::string> rutas[3];
  for (auto const& proyecto : casa.carpetas.at("/r")) {
    for (auto const& nombre : casa.carpetas.at("/r/" + proyecto)) {
      auto const ruta = "/r/" + proyecto + "/" + nombre;
      auto const& entrada = casa.entradas.at(ruta);
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
  for (auto const& t : resultado.transcripciones) halladas.push_back(t.ruta);
  EXPECT_EQ(halladas, esperadas);
  EXPECT_EQ(mensajes(resultado), esperados);
}

TEST(TranscriptScannerOrden, laTareaAjenaSeHaceUnaVezYElResultadoEsElMismo) {
  ArchivosDespaciosos casa;
  revolver(casa);
  int veces = 0;
  EXPECT_EQ(escanear(casa, "/r", [&] { ++veces; }), escanear(casa, "/r"));
  EXPECT_EQ(veces, 1);
}

TEST(TranscriptScannerOrden, laTareaAjenaSeHaceAunqueLaRaizFalte) {
  ArchivosDespaciosos casa;
  int veces = 0;
  EXPECT_THAT(escanear(casa, "/no/hay", [&] { ++veces; }).errores, SizeIs(1));
  EXPECT_EQ(veces, 1);
}

TEST(LargoTranscriptScanner, cienMilTranscripcionesSeHallanTodas) {
  ArchivosDespaciosos casa;
  for (std::size_t p = 0; p < 100; ++p) {
    auto const slug = "p" + std::to_string(p);
    casa.carpetas["/r"].push_back(slug);
    auto& nombres = casa.carpetas["/r/" + slug];
    for (std::size_t n = 0; n < 1000; ++n) {
      nombres.push_back(uuid(p * 1000 + n) + ".jsonl");
      casa.entradas["/r/" + slug + "/" + nombres.back()] = {.texto = contenido,
                                                            .mtime = static_cast<double>(p * 1000 + n)};
    }
  }
  auto const resultado = escanear(casa, "/r");
  ASSERT_THAT(resultado.transcripciones, SizeIs(100'000));
  EXPECT_THAT(resultado.errores, IsEmpty());
  for (std::size_t i = 0; i < 100'000; ++i) {
    ASSERT_EQ(resultado.transcripciones[i].sessionId, uuid(99'999 - i));
    ASSERT_EQ(resultado.transcripciones[i].aiTitle, "t");
  }
}

}  // namespace
}  // namespace zorve
