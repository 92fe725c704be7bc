#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "Dobles/ArchivosQueFallan.h"
#include "Dobles/CarpetaTemporal.h"
#include "Dobles/ProcesosFijos.h"
#include "ZorveCore/Lectura/SessionIndex.h"
#include "ZorveCore/Lectura/Transcripciones.h"
#include "ZorvePlatform/Posix/ArchivosPosix.h"

namespace zorve {
namespace {

using dobles::ArchivosQueFallan;
using Llamada = ArchivosQueFallan::Llamada;

/// A whole home on the disk, of which every call that reading it makes can be made to fail.
class Fallos : public testing::Test {
 protected:
  static constexpr std::size_t cuantas = 6;

  Fallos() {
    std::string historia;
    for (std::size_t i = 0; i < cuantas; ++i) {
      carpeta.escribir(deTranscripcion(i), R"({"cwd":"/p"})"
                                           "\n" +
                                               std::string(i == 5 ? 600'000 : 10, '\n') +
                                               R"({"type":"ai-title","aiTitle":"t)" + std::to_string(i) +
                                               "\"}\n");
      historia += R"({"display":"prompt)" + std::to_string(i) + R"(","timestamp":)" +
                  std::to_string(900 + i) + R"(,"project":"/h","sessionId":")" + uuid(i) + "\"}\n";
    }
    carpeta.escribir(".claude/history.jsonl", historia);
    carpeta.escribir(".claude/sessions/1.json",
                     R"({"pid":1,"sessionId":")" + uuid(1) + R"(","cwd":"/p","status":"busy"})");
    sana = construir(verdaderos);
  }

  /// Two sessions a project folder.
  static std::string deTranscripcion(std::size_t i) {
    return ".claude/projects/p" + std::to_string(i / 2) + "/" + uuid(i) + ".jsonl";
  }
  IndexResult construir(Archivos& archivos) {
    return SessionIndex::construir(archivos, procesos, SessionIndex::ubicacionesPorDefecto(carpeta.ruta()));
  }
  /// The same session of the healthy list.
  [[nodiscard]] Session const* enLaSana(Session const& sesion) const {
    auto const lugar = std::ranges::find(sana.sesiones, sesion.sessionId, &Session::sessionId);
    return lugar == sana.sesiones.end() ? nullptr : &*lugar;
  }
  void comprobar(IndexResult const& resultado, ArchivosQueFallan const& fallados, int codigo) const;

  dobles::CarpetaTemporal carpeta;
  ArchivosPosix verdaderos;
  dobles::ProcesosFijos procesos{1};
  IndexResult sana;
};

/// What one failed call may cost, and what is said of it.
struct Precio {
  std::size_t sesiones = 0;
  std::string aviso;
};

Precio precioDe(Llamada llamada, std::string const& ruta, std::string const& home, std::string const& causa) {
  auto const proyectos = home + "/.claude/projects";
  auto const historia = home + "/.claude/history.jsonl";
  bool const transcripcion = ruta.starts_with(proyectos) && ruta.ends_with(".jsonl");
  if (ruta == historia && llamada == Llamada::existe) return {0, historia + " does not exist. "};
  if (ruta == historia && llamada == Llamada::abrir) return {0, "Could not open " + historia + ": " + causa};
  if (ruta == historia) return {0, "Failed to read " + historia + " after line "};
  if (transcripcion && llamada == Llamada::atributos)
    return {1, "Could not read the size or date of " + ruta};
  if (transcripcion) return {0, "Could not read the ai-title of " + ruta + ": " + causa};
  if (ruta == proyectos) return {6, "Could not list " + proyectos + ": " + causa};
  if (ruta.starts_with(proyectos) && llamada == Llamada::listar)
    return {2, "Could not list " + ruta + ": " + causa};
  if (ruta.starts_with(proyectos)) return {2, ""};
  if (ruta.ends_with("/sessions") && llamada == Llamada::listar)
    return {0, "Could not list " + ruta + ": " + causa};
  if (ruta.ends_with("/sessions")) return {0, ""};
  return {0, "Could not read 1.json: " + causa};
}

void Fallos::comprobar(IndexResult const& resultado, ArchivosQueFallan const& fallados, int codigo) const {
  auto const precio = precioDe(fallados.fallada, fallados.rutaFallada, carpeta.ruta(),
                               FalloDelSistema::deErrno(codigo).descripcion);
  EXPECT_EQ(resultado.sesiones.size(), cuantas - precio.sesiones) << fallados.rutaFallada;
  ASSERT_EQ(resultado.errores.size(), precio.aviso.empty() ? 0U : 1U) << fallados.rutaFallada;
  if (!precio.aviso.empty()) {
    EXPECT_TRUE(resultado.errores[0].mensaje.starts_with(precio.aviso)) << resultado.errores[0].mensaje;
  }
  for (auto const& sesion : resultado.sesiones) {
    auto const* const antes = enLaSana(sesion);
    ASSERT_NE(antes, nullptr);
    if (fallados.rutaFallada.ends_with(*sesion.sessionId + ".jsonl")) continue;
    EXPECT_EQ(sesion.titulo, antes->titulo) << fallados.rutaFallada;
  }
}

TEST_F(Fallos, enCualquierLlamadaCuestanLoSuyoYDanSuAviso) {
  for (int const codigo : {EIO, EACCES, EMFILE, ENOMEM, ENOENT, ESTALE}) {
    std::size_t cual = 1;
    for (;; ++cual) {
      ArchivosQueFallan fallados{verdaderos, cual, codigo};
      auto const resultado = construir(fallados);
      if (fallados.fallada == Llamada::ninguna) break;
      comprobar(resultado, fallados, codigo);
      ASSERT_FALSE(HasFailure()) << "call " << cual << ", " << FalloDelSistema::deErrno(codigo).descripcion;
    }
    EXPECT_GT(cual, 40U);
  }
}

/// What may happen to a file between two calls.
struct Cambio {
  char const* nombre;
  std::function<void(std::filesystem::path const&)> hacer;
};

std::vector<Cambio> const cambios{
    {"vanishes", [](auto const& ruta) { std::filesystem::remove(ruta); }},
    {"is emptied", [](auto const& ruta) { std::filesystem::resize_file(ruta, 0); }},
    {"is cut", [](auto const& ruta) { std::filesystem::resize_file(ruta, 5); }},
    {"grows", [](auto const& ruta) { std::filesystem::resize_file(ruta, 3'000'000); }},
    {"becomes a folder",
     [](auto const& ruta) {
       std::filesystem::remove(ruta);
       std::filesystem::create_directory(ruta);
     }},
    {"becomes a pipe",
     [](auto const& ruta) {
       std::filesystem::remove(ruta);
       ASSERT_EQ(::mkfifo(ruta.c_str(), 0600), 0);
     }},
    {"becomes a loop",
     [](auto const& ruta) {
       std::filesystem::remove(ruta);
       std::filesystem::create_symlink(ruta.filename(), ruta);
     }},
};

class Cambios : public Fallos, public testing::WithParamInterface<std::size_t> {};

TEST_P(Cambios, deUnArchivoEntreDosLlamadasNoTocanALosDemas) {
  auto const& cambio = cambios.at(GetParam());
  auto const tocada = carpeta.dentro(deTranscripcion(5));
  auto const copia = carpeta.dentro("copia");
  std::filesystem::copy_file(tocada, copia);
  for (std::size_t cual = 1;; ++cual) {
    ArchivosQueFallan cambiantes{verdaderos, cual, 0, [&] { cambio.hacer(tocada); }};
    auto const resultado = construir(cambiantes);
    std::size_t iguales = 0;
    for (auto const& sesion : resultado.sesiones) iguales += *enLaSana(sesion) == sesion ? 1U : 0U;
    EXPECT_GE(iguales, cuantas - 1) << cambio.nombre << " before call " << cual;
    EXPECT_LE(resultado.errores.size(), 1U) << cambio.nombre << " before call " << cual;
    if (cambiantes.llamadas() < cual) break;
    std::filesystem::remove_all(tocada);
    std::filesystem::copy_file(copia, tocada);
  }
}

INSTANTIATE_TEST_SUITE_P(Lectura, Cambios, testing::Range(std::size_t{0}, cambios.size()));

}  // namespace
}  // namespace zorve
