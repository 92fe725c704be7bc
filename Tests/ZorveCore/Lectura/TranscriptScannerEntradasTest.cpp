#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <chrono>
#include <filesystem>
#include <iterator>
#include <string>

#include "Dobles/CimaDeMemoria.h"
#include "Dobles/SinPrivilegios.h"
#include "ZorveCore/Lectura/Transcripciones.h"

namespace zorve {
namespace {

namespace fs = std::filesystem;
using dobles::SinPrivilegios;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

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
  EXPECT_THAT(identificadores(resultado), UnorderedElementsAre(uuid(1), uuid(3)));
  EXPECT_THAT(resultado.errores,
              UnorderedElementsAre(
                  error("Could not read the ai-title of " + rutaDe("p", uuid(1)) + ": Not a regular file"),
                  error("Could not read the size or date of " + rutaDe("p", uuid(2))),
                  error("Could not read the ai-title of " + rutaDe("p", uuid(3)) + ": Not a regular file")));
  for (auto const& t : resultado.transcripciones) {
    EXPECT_EQ(t.aiTitle, std::nullopt);
    EXPECT_EQ(t.cwd, std::nullopt);
  }
}

TEST_F(TranscriptScannerTest, unEnlaceAUnaCarpetaConNombreDeTranscripcionSeListaConSuError) {
  carpeta.carpeta("projects/p");
  fs::create_directory_symlink("/", rutaDe("p", uuid(1)));
  auto const resultado = escaneo();
  EXPECT_THAT(identificadores(resultado), ElementsAre(uuid(1)));
  EXPECT_THAT(resultado.errores, ElementsAre(error("Could not read the ai-title of " + rutaDe("p", uuid(1)) +
                                                   ": Is a directory")));
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

TEST_F(TranscriptScannerTest, unArchivoDeUnGigabyteEnUnaSolaLineaSeLeeEnPocaMemoria) {
  auto const ruta = transcripcion("p", uuid(1), "{\"m\":\"");
  fs::resize_file(ruta, 1ULL << 30U);
  dobles::CimaDeMemoria const cima;
  auto const resultado = escaneo();
  EXPECT_LT(cima.crecida(), 32LL << 20U);
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

}  // namespace
}  // namespace zorve
