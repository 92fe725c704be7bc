#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <set>
#include <string>

#include "Dobles/SinPrivilegios.h"
#include "ZorveCore/Lectura/Transcripciones.h"

namespace zorve {
namespace {

namespace fs = std::filesystem;
using dobles::SinPrivilegios;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using TranscriptScanner::escanear;

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

#if !defined(__APPLE__)  // whose file systems refuse such names
TEST_F(TranscriptScannerTest, losNombresQueNoSonUtf8NoEstorban) {
  carpeta.escribir("projects/p/\xff\xfe" + uuid(1).substr(2) + ".jsonl", contenido);
  carpeta.escribir("projects/\xe9t\xe9/" + uuid(2) + ".jsonl", contenido);
  auto const resultado = escaneo();
  ASSERT_THAT(identificadores(resultado), ElementsAre(uuid(2)));
  EXPECT_EQ(resultado.transcripciones[0].slug, "\xe9t\xe9");
  EXPECT_THAT(resultado.errores, IsEmpty());
}
#endif

TEST_F(TranscriptScannerTest, laMasNuevaVaPrimero) {
  for (std::size_t n = 1; n <= 5; ++n) {
    fechar(transcripcion("p" + std::to_string(n % 2), uuid(n)), static_cast<std::int64_t>(n * 7 % 5));
  }
  EXPECT_THAT(identificadores(escaneo()), ElementsAre(uuid(2), uuid(4), uuid(1), uuid(3), uuid(5)));
}

}  // namespace
}  // namespace zorve
