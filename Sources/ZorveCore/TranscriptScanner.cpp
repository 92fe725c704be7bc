#include "ZorveCore/TranscriptScanner.h"

#include <algorithm>
#include <atomic>
#include <utility>

#include "ZorveCore/LectorDeCabeceras.h"
#include "ZorveCore/Paralelo.h"

namespace zorve {

namespace {

constexpr std::string_view extension = ".jsonl";
constexpr std::size_t largoDeUuid = 36;
/// Fewer files than this are read sooner than a thread is started.
constexpr std::size_t archivosPorHilo = 24;

bool esHexadecimal(char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool esUuid(std::string_view nombre) {
  if (nombre.size() != largoDeUuid) return false;
  for (std::size_t i = 0; i < largoDeUuid; ++i) {
    bool const guion = i == 8 || i == 13 || i == 18 || i == 23;
    if (guion ? nombre[i] != '-' : !esHexadecimal(nombre[i])) return false;
  }
  return true;
}

IndexError error(std::string_view que, std::string const& ruta, FalloDelSistema const& fallo) {
  return {IndexSource::transcripts, std::string{que} + ruta + ": " + fallo.descripcion};
}

/// A project folder with the files in it that are named like transcripts, in the order listed.
struct Proyecto {
  std::string slug;
  std::string ruta;
  std::vector<std::string> archivos;
  std::optional<IndexError> error;
};

struct Candidato {
  Proyecto const* proyecto = nullptr;
  std::string const* nombre = nullptr;
};

/// What became of a candidate. One without size or date has an error alone.
struct Lectura {
  std::optional<Transcript> transcript;
  std::optional<IndexError> error;
};

Proyecto listarProyecto(Archivos& archivos, std::string const& raiz, std::string const& slug) {
  Proyecto proyecto{.slug = slug, .ruta = unirRuta(raiz, slug)};
  auto nombres = archivos.listar(proyecto.ruta);
  if (!nombres) {
    proyecto.error = error("Could not list ", proyecto.ruta, nombres.error());
    return proyecto;
  }
  for (auto& nombre : *nombres) {
    if (TranscriptScanner::sessionIdDeArchivo(nombre)) proyecto.archivos.push_back(std::move(nombre));
  }
  return proyecto;
}

bool esCarpetaVisible(Archivos& archivos, std::string const& raiz, std::string const& nombre) {
  if (nombre.starts_with('.')) return false;
  auto const atributos = archivos.atributos(unirRuta(raiz, nombre));
  return atributos && atributos->clase == ClaseDeArchivo::carpeta;
}

Lectura leerCandidato(Archivos& archivos, LectorDeCabeceras& lector, Candidato candidato) {
  Lectura lectura;
  auto const& [proyecto, nombre] = candidato;
  auto ruta = unirRuta(proyecto->ruta, *nombre);
  auto const atributos = archivos.atributos(ruta);
  if (!atributos) {
    lectura.error = {IndexSource::transcripts, "Could not read the size or date of " + ruta};
    return lectura;
  }
  auto cabecera = lector.leer(archivos, ruta, atributos->tamanoBytes);
  if (!cabecera) lectura.error = error("Could not read the ai-title of ", ruta, cabecera.error());
  auto hallada = cabecera ? std::move(*cabecera) : TranscriptScanner::Cabecera{};
  lectura.transcript = {.sessionId = nombre->substr(0, largoDeUuid),
                        .ruta = std::move(ruta),
                        .slug = proyecto->slug,
                        .mtime = atributos->mtime,
                        .tamanoBytes = atributos->tamanoBytes,
                        .aiTitle = std::move(hallada.aiTitle),
                        .cwd = std::move(hallada.cwd)};
  return lectura;
}

std::vector<Candidato> candidatosDe(std::vector<Proyecto> const& proyectos) {
  std::vector<Candidato> candidatos;
  for (auto const& proyecto : proyectos) {
    for (auto const& nombre : proyecto.archivos) candidatos.push_back({&proyecto, &nombre});
  }
  return candidatos;
}

/// One reading a candidate, in their order, whichever is done first. `aLaVez` is the first task of all.
std::vector<Lectura> leerTodos(Archivos& archivos, std::vector<Candidato> const& candidatos,
                               std::function<void()> const& aLaVez) {
  std::vector<Lectura> lecturas(candidatos.size());
  std::atomic<std::size_t> siguiente{0};
  ladoALado(hilosPara(candidatos.size(), archivosPorHilo), [&] {
    LectorDeCabeceras lector;
    for (auto tarea = siguiente++; tarea <= candidatos.size(); tarea = siguiente++) {
      if (tarea == 0) {
        aLaVez();
      } else {
        lecturas[tarea - 1] = leerCandidato(archivos, lector, candidatos[tarea - 1]);
      }
    }
  });
  return lecturas;
}

TranscriptScanner::Resultado reunir(std::vector<Proyecto>& proyectos, std::vector<Lectura>& lecturas) {
  TranscriptScanner::Resultado resultado;
  resultado.transcripciones.reserve(lecturas.size());
  auto lectura = lecturas.begin();
  for (auto& proyecto : proyectos) {
    if (proyecto.error) resultado.errores.push_back(std::move(*proyecto.error));
    for (auto const fin = lectura + static_cast<std::ptrdiff_t>(proyecto.archivos.size()); lectura != fin;
         ++lectura) {
      if (lectura->error) resultado.errores.push_back(std::move(*lectura->error));
      if (lectura->transcript) resultado.transcripciones.push_back(std::move(*lectura->transcript));
    }
  }
  std::ranges::stable_sort(resultado.transcripciones, std::ranges::greater{}, &Transcript::mtime);
  return resultado;
}

}  // namespace

namespace TranscriptScanner {

std::string raizPorDefecto(std::string const& home) { return unirRuta(home, ".claude/projects"); }

Resultado escanear(Archivos& archivos, std::string const& raiz) {
  return escanear(archivos, raiz, [] {});
}

Resultado escanear(Archivos& archivos, std::string const& raiz, std::function<void()> const& aLaVez) {
  auto const entradas = archivos.listar(raiz);
  std::vector<Proyecto> proyectos;
  for (auto const& nombre : entradas ? *entradas : std::vector<std::string>{}) {
    if (esCarpetaVisible(archivos, raiz, nombre)) proyectos.push_back(listarProyecto(archivos, raiz, nombre));
  }
  auto lecturas = leerTodos(archivos, candidatosDe(proyectos), aLaVez);
  if (!entradas) return {{}, {error("Could not list ", raiz, entradas.error())}};
  return reunir(proyectos, lecturas);
}

std::optional<std::string> sessionIdDeArchivo(std::string_view ruta) {
  auto const nombre = ruta.substr(ruta.rfind('/') + 1);
  if (!nombre.ends_with(extension)) return std::nullopt;
  auto const identificador = nombre.substr(0, nombre.size() - extension.size());
  if (!esUuid(identificador)) return std::nullopt;
  return std::string{identificador};
}

std::expected<Cabecera, FalloDelSistema> leerCabecera(Archivos& archivos, std::string const& ruta,
                                                      std::int64_t tamanoBytes) {
  return LectorDeCabeceras{}.leer(archivos, ruta, tamanoBytes);
}

std::optional<std::string> ultimoAITitle(std::string_view bloque) {
  return LectorDeCabeceras{}.titulo(bloque);
}

std::optional<std::string> primerCwd(std::string_view bloque) {
  return LectorDeCabeceras{}.directorio(bloque);
}

}  // namespace TranscriptScanner
}  // namespace zorve
