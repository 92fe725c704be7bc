#include "ZorveCore/Lectura/SessionIndex.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <new>

#include "Dobles/ArchivosDeMemoria.h"
#include "Dobles/CarpetaTemporal.h"
#include "Dobles/SinPrivilegios.h"
#include "ZorveCore/Lectura/Transcripciones.h"
#include "ZorvePlatform/Posix/ArchivosPosix.h"
#include "ZorvePlatform/Posix/VidaDeProcesosPosix.h"

namespace zorve {
namespace {

constexpr std::string_view idUno = "11111111-aaaa-4bbb-8ccc-000000000001";
constexpr std::string_view idDos = "22222222-aaaa-4bbb-8ccc-000000000002";

class SessionIndexTest : public testing::Test {
 protected:
  IndexResult construir() { return construir(SessionIndex::ubicacionesPorDefecto(home.ruta())); }
  IndexResult construir(Ubicaciones const& donde) {
    ArchivosPosix archivos;
    VidaDeProcesosPosix procesos;
    return SessionIndex::construir(archivos, procesos, donde, voces);
  }
  void transcripcion(std::string_view id, std::string_view lineas) const {
    home.escribir(".claude/projects/p/" + std::string{id} + ".jsonl", lineas);
  }
  [[nodiscard]] IndexError bienvenida(std::string const& aqui = "on this Mac") const {
    return {IndexSource::transcripts,
            "No Claude Code sessions " + aqui + " yet: " + home.ruta() +
                "/.claude does not exist. Run `claude` once in a terminal and Zorve will list it here."};
  }

  dobles::CarpetaTemporal home;
  VocesDelSistema voces;
};

TEST_F(SessionIndexTest, lasUbicacionesPorDefectoEstanBajoElHome) {
  EXPECT_EQ(SessionIndex::ubicacionesPorDefecto("/h"),
            (Ubicaciones{"/h", "/h/.claude/history.jsonl", "/h/.claude/projects", "/h/.claude/sessions"}));
  EXPECT_EQ(SessionIndex::raizDeClaude("/"), "/.claude");
}

TEST_F(SessionIndexTest, enLinuxLaBienvenidaHablaDelEquipo) {
  voces = vocesDeLinux;
  EXPECT_EQ(construir().errores, std::vector{bienvenida("on this computer")});
}

TEST_F(SessionIndexTest, juntaLasTresFuentes) {
  transcripcion(idUno, "{\"type\":\"ai-title\",\"aiTitle\":\"Título\"}\n");
  transcripcion(idDos, "{\"cwd\":\"/srv/dos\"}\n");
  home.escribir(".claude/history.jsonl",
                R"({"display":"p","timestamp":4000000000500,"project":"/h","sessionId":")" +
                    std::string{idUno} + "\"}\n");
  home.escribir(".claude/sessions/1.json", R"({"pid":)" + std::to_string(::getpid()) + R"(,"sessionId":")" +
                                               std::string{idDos} + R"(","cwd":"/v","status":"busy"})");
  auto const resultado = construir();
  ASSERT_EQ(resultado.sesiones.size(), 2);
  EXPECT_TRUE(resultado.errores.empty());
  EXPECT_EQ(resultado.sesiones[0],
            (Session{.titulo = "Título",
                     .tituloOrigen = TitleSource::aiTitle,
                     .cwd = "/h",
                     .ultimaActividad = Fecha{std::chrono::duration<double>{4'000'000'000.5}},
                     .conteoPrompts = 1,
                     .ultimoPrompt = "p",
                     .sessionId = std::string{idUno}}));
  EXPECT_EQ(resultado.sesiones[1].titulo, "dos");
  EXPECT_EQ(resultado.sesiones[1].liveState, LiveState::busy);
  EXPECT_EQ(resultado.sesiones[1].pid, ::getpid());
}

TEST_F(SessionIndexTest, losAvisosVanEnElOrdenDeLasFuentes) {
  transcripcion(idUno, "{}\n");
  home.escribir(".claude/projects/q/" + std::string{idDos} + ".jsonl", "{\"cwd\":\"/x\"}\n");
  std::filesystem::create_directories(
      home.dentro(".claude/projects/q/33333333-aaaa-4bbb-8ccc-000000000003.jsonl"));
  home.escribir(".claude/history.jsonl", "no\n");
  home.escribir(".claude/sessions/1.json", "no");
  auto const errores = construir().errores;
  ASSERT_EQ(errores.size(), 4);
  EXPECT_EQ(errores[0].fuente, IndexSource::history);
  EXPECT_TRUE(errores[0].mensaje.starts_with("1 of 1 lines are unreadable in "));
  EXPECT_EQ(errores[1].fuente, IndexSource::transcripts);
  EXPECT_EQ(errores[2].fuente, IndexSource::sessions);
  EXPECT_EQ(errores[3].fuente, IndexSource::history);
  EXPECT_TRUE(errores[3].mensaje.starts_with("1 session(s) have a transcript")) << errores[3].mensaje;
}

TEST_F(SessionIndexTest, laHistoriaSeLeeUnaVezPorMuchosHilosQueLean) {
  dobles::ArchivosDeMemoria archivos;
  VidaDeProcesosPosix procesos;
  auto const donde = SessionIndex::ubicacionesPorDefecto("/h");
  archivos.escribir(donde.history,
                    "{\"display\":\"p\",\"timestamp\":1,\"project\":\"/x\",\"sessionId\":\"s\"}\n");
  for (std::size_t i = 0; i < 500; ++i) {
    archivos.escribir(donde.transcripciones + "/p/" + uuid(i) + ".jsonl", "{\"cwd\":\"/x\"}\n");
  }
  EXPECT_EQ(SessionIndex::construir(archivos, procesos, donde).sesiones.size(), 500);
  EXPECT_EQ(std::ranges::count(archivos.abiertos(), donde.history), 1);
}

/// What is listed of a home in memory with one project of two transcripts, one entry of which is flagged
/// hidden.
IndexResult conOculto(std::string const& oculto) {
  dobles::ArchivosDeMemoria archivos;
  VidaDeProcesosPosix procesos;
  auto const donde = SessionIndex::ubicacionesPorDefecto("/h");
  archivos.escribir(donde.history, "");
  for (auto const n : {1UZ, 2UZ}) {
    archivos.escribir(donde.transcripciones + "/p/" + uuid(n) + ".jsonl", "{\"cwd\":\"/x\"}\n");
  }
  archivos.ocultar(donde.transcripciones + oculto);
  return SessionIndex::construir(archivos, procesos, donde);
}

TEST(SessionIndexOcultos, unaTranscripcionMarcadaComoOcultaSePasaPorAltoSinAviso) {
  auto const resultado = conOculto("/p/" + uuid(1) + ".jsonl");
  ASSERT_EQ(resultado.sesiones.size(), 1);
  EXPECT_EQ(resultado.sesiones[0].sessionId, uuid(2));
  EXPECT_TRUE(resultado.errores.empty());
}

TEST(SessionIndexOcultos, unaCarpetaMarcadaComoOcultaSePasaPorAltoSinAviso) {
  EXPECT_EQ(conOculto("/p"), IndexResult{});
}

/// A home in memory where reading one file finds no memory left.
class SinMemoria : public testing::Test {
 protected:
  IndexResult construirSinMemoriaPara(std::string const& ruta) {
    archivos.escribir(donde.history, "");
    archivos.escribir(donde.sesionesVivas + "/1.json", "no");
    for (std::size_t i = 0; i < 100; ++i) {
      archivos.escribir(donde.transcripciones + "/p/" + uuid(i) + ".jsonl", "{\"cwd\":\"/x\"}\n");
    }
    archivos.antesDeLeer(ruta, [](std::size_t) { throw std::bad_alloc{}; });
    return SessionIndex::construir(archivos, procesos, donde);
  }

  dobles::ArchivosDeMemoria archivos;
  VidaDeProcesosPosix procesos;
  Ubicaciones donde = SessionIndex::ubicacionesPorDefecto("/h");
};

TEST_F(SinMemoria, enLaHistoriaEsUnAvisoYLasSesionesSeListan) {
  auto const resultado = construirSinMemoriaPara(donde.history);
  EXPECT_EQ(resultado.sesiones.size(), 100);
  EXPECT_EQ(resultado.errores.at(0),
            (IndexError{IndexSource::history, "Could not read " + donde.history +
                                                  ": Cannot allocate memory. Close something and refresh."}));
}

TEST_F(SinMemoria, enUnaTranscripcionEsUnAvisoYLasDemasSeListan) {
  auto const ruta = donde.transcripciones + "/p/" + uuid(7) + ".jsonl";
  auto const resultado = construirSinMemoriaPara(ruta);
  EXPECT_EQ(resultado.sesiones.size(), 99);
  EXPECT_EQ(resultado.errores.at(0).mensaje,
            "Could not read the ai-title of " + ruta + ": Cannot allocate memory");
}

TEST_F(SinMemoria, enUnRegistroVivoEsUnAvisoYLasSesionesSeListan) {
  auto const resultado = construirSinMemoriaPara(donde.sesionesVivas + "/1.json");
  EXPECT_EQ(resultado.sesiones.size(), 100);
  EXPECT_EQ(resultado.errores.at(0).mensaje, "Could not read " + donde.sesionesVivas +
                                                 ": Cannot allocate memory. Close something and refresh.");
}

TEST_F(SessionIndexTest, sinCarpetaDelAgenteHayUnSoloAviso) {
  EXPECT_EQ(construir(), (IndexResult{{}, {bienvenida()}}));
}

TEST_F(SessionIndexTest, elAvisoDeBienvenidaTapaLosDeLosLectores) {
  dobles::CarpetaTemporal const otra;
  EXPECT_EQ(construir({home.ruta(), otra.escribir("h.jsonl", "no\n"), otra.dentro("nada"),
                       otra.escribir("no-es-carpeta", "")}),
            (IndexResult{{}, {bienvenida()}}));
}

TEST_F(SessionIndexTest, conLaCarpetaPresenteQuedanLosAvisosDeLosLectores) {
  home.carpeta(".claude");
  auto const resultado = construir();
  EXPECT_TRUE(resultado.sesiones.empty());
  ASSERT_EQ(resultado.errores.size(), 2);
  EXPECT_EQ(resultado.errores[0].mensaje,
            home.dentro(".claude/history.jsonl") +
                " does not exist. Without that file there is no reliable way to know the cwd of Claude Code "
                "sessions.");
  EXPECT_TRUE(
      resultado.errores[1].mensaje.starts_with("Could not list " + home.dentro(".claude/projects") + ": "));
}

TEST_F(SessionIndexTest, conSesionesEnOtraParteNoImportaQueFalteLaCarpeta) {
  dobles::CarpetaTemporal const otra;
  otra.escribir("projects/p/" + std::string{idUno} + ".jsonl", "{\"cwd\":\"/x\"}\n");
  auto const resultado = construir(
      {home.ruta(), otra.escribir("h.jsonl", ""), otra.dentro("projects"), otra.dentro("sessions")});
  EXPECT_EQ(resultado.sesiones.size(), 1);
  EXPECT_TRUE(resultado.errores.empty());
}

TEST_F(SessionIndexTest, unEnlaceRotoNoEsUnaCarpetaDelAgente) {
  std::filesystem::create_symlink(home.dentro("nada"), home.dentro(".claude"));
  EXPECT_EQ(construir(), (IndexResult{{}, {bienvenida()}}));
}

TEST_F(SessionIndexTest, unBucleDeEnlacesNoEsUnaCarpetaDelAgente) {
  std::filesystem::create_symlink(".claude", home.dentro(".claude"));
  EXPECT_EQ(construir(), (IndexResult{{}, {bienvenida()}}));
}

TEST_F(SessionIndexTest, unaCarpetaDelAgenteCerradaDaSusAvisosYNoElDeBienvenida) {
  transcripcion(idUno, "{\"cwd\":\"/x\"}\n");
  home.escribir(".claude/history.jsonl", "");
  home.carpeta(".claude/sessions");
  std::filesystem::permissions(home.dentro(".claude"), std::filesystem::perms::none);
  dobles::SinPrivilegios const sinPrivilegios;
  auto const errores = construir().errores;
  ASSERT_EQ(errores.size(), 2);
  EXPECT_TRUE(errores[0].mensaje.starts_with(home.dentro(".claude/history.jsonl") + " does not exist. "));
  EXPECT_EQ(errores[1].mensaje, "Could not list " + home.dentro(".claude/projects") + ": Permission denied");
}

}  // namespace
}  // namespace zorve
