#include "ZorveCore/Lectura/TranscriptScanner.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <new>
#include <unordered_set>
#include <utility>

#include "ZorveCore/Lectura/Paralelo.h"

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

IndexError fallo(std::string_view que, std::string const& ruta, FalloDelSistema const& fallo) {
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

/// What became of a candidate. One without size or date has an error alone, one flagged hidden has nothing.
struct Lectura {
  std::optional<Transcript> transcript;
  std::optional<IndexError> error;
};

Proyecto listarProyecto(Archivos& archivos, std::string const& raiz, std::string const& slug) {
  Proyecto proyecto{.slug = slug, .ruta = unirRuta(raiz, slug)};
  auto nombres = archivos.listar(proyecto.ruta);
  if (!nombres) {
    proyecto.error = fallo("Could not list ", proyecto.ruta, nombres.error());
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
  return atributos && atributos->clase == ClaseDeArchivo::carpeta && !atributos->oculto;
}

std::string_view identificadorDe(std::string_view nombre) { return nombre.substr(0, largoDeUuid); }

std::expected<TranscriptScanner::Cabecera, FalloDelSistema> leerCabecera(Archivos& archivos,
                                                                         LectorDeCabeceras& lector,
                                                                         std::string const& ruta,
                                                                         std::int64_t tamanoBytes) {
  try {
    return lector.leer(archivos, ruta, tamanoBytes);
  } catch (std::bad_alloc const&) {
    return std::unexpected{FalloDelSistema::deErrno(ENOMEM)};
  }
}

Lectura leerCandidato(Archivos& archivos, LectorDeCabeceras& lector, Candidato candidato) {
  Lectura lectura;
  auto const& [proyecto, nombre] = candidato;
  auto ruta = unirRuta(proyecto->ruta, *nombre);
  auto const atributos = archivos.atributos(ruta);
  if (!atributos || atributos->clase == ClaseDeArchivo::carpeta) {
    lectura.error = {IndexSource::transcripts, "Could not read the size or date of " + ruta};
    return lectura;
  }
  if (atributos->oculto) return lectura;
  auto cabecera = leerCabecera(archivos, lector, ruta, atributos->tamanoBytes);
  if (!cabecera) lectura.error = fallo("Could not read the ai-title of ", ruta, cabecera.error());
  auto hallada = cabecera ? std::move(*cabecera) : TranscriptScanner::Cabecera{};
  lectura.transcript = {.sessionId = std::string{identificadorDe(*nombre)},
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

TranscriptScanner::Resultado enOrden(std::vector<Proyecto>& proyectos, std::vector<Lectura>& lecturas) {
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

struct Escaneo::Interior {
  Archivos& archivos;
  std::optional<IndexError> error;
  std::vector<Proyecto> proyectos;
  std::vector<Candidato> candidatos;
  std::unordered_set<std::string_view> identificadores;
  /// One a candidate, in their order, whichever is done first.
  std::vector<Lectura> lecturas;
  std::atomic<std::size_t> siguiente{0};

  void listar(std::string const& raiz);
};

void Escaneo::Interior::listar(std::string const& raiz) {
  auto const entradas = archivos.listar(raiz);
  if (!entradas) {
    error = fallo("Could not list ", raiz, entradas.error());
    return;
  }
  for (auto const& nombre : *entradas) {
    if (esCarpetaVisible(archivos, raiz, nombre)) proyectos.push_back(listarProyecto(archivos, raiz, nombre));
  }
  candidatos = candidatosDe(proyectos);
  for (auto const& uno : candidatos) identificadores.insert(identificadorDe(*uno.nombre));
  lecturas.resize(candidatos.size());
}

Escaneo::Escaneo(Archivos& archivos, std::string const& raiz) : interior_{new Interior{archivos}} {
  interior_->listar(raiz);
}

Escaneo::~Escaneo() = default;

bool Escaneo::tiene(std::string const& sessionId) const {
  return interior_->identificadores.contains(sessionId);
}

std::size_t Escaneo::hilos() const { return hilosPara(interior_->candidatos.size(), archivosPorHilo); }

void Escaneo::leer() {
  auto& [archivos, error, proyectos, candidatos, identificadores, lecturas, siguiente] = *interior_;
  LectorDeCabeceras lector;
  for (auto i = siguiente++; i < candidatos.size(); i = siguiente++) {
    lecturas[i] = leerCandidato(archivos, lector, candidatos[i]);
  }
}

Resultado Escaneo::reunir() {
  if (interior_->error) return {{}, {std::move(*interior_->error)}};
  return enOrden(interior_->proyectos, interior_->lecturas);
}

Resultado escanear(Archivos& archivos, std::string const& raiz) {
  Escaneo escaneo{archivos, raiz};
  ladoALado(escaneo.hilos(), [&] { escaneo.leer(); });
  return escaneo.reunir();
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
