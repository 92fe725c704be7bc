#include "ZorveCore/Lectura/SessionIndex.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <iterator>
#include <new>
#include <utility>
#include <vector>

#include "ZorveCore/Lectura/Ensamblado.h"
#include "ZorveCore/Lectura/HistoryStore.h"
#include "ZorveCore/Lectura/LiveProbe.h"
#include "ZorveCore/Lectura/Paralelo.h"
#include "ZorveCore/Lectura/TranscriptScanner.h"

namespace zorve {

namespace {

IndexResult soloElAvisoDeBienvenida(std::string const& raiz, VocesDelSistema const& voces) {
  return {{},
          {{IndexSource::transcripts,
            "No Claude Code sessions " + std::string{voces.aquiEnIngles} + " yet: " + raiz +
                " does not exist. Run `claude` once in a terminal and Zorve will list it here."}}};
}

void agregar(std::vector<IndexError>& errores, std::vector<IndexError>&& mas) {
  std::ranges::move(mas, std::back_inserter(errores));
}

IndexError sinMemoria(IndexSource fuente, std::string const& que) {
  return {fuente, "Could not read " + que + ": " + FalloDelSistema::deErrno(ENOMEM).descripcion +
                      ". Close something and refresh."};
}

HistoryResult leerHistoria(Archivos& archivos, std::string const& ruta,
                           HistoryStore::Encargo const& encargo) {
  try {
    auto historia = HistoryStore::cargar(archivos, ruta, encargo);
    if (historia) return std::move(*historia);
    return {.errores = {std::move(historia.error())}};
  } catch (std::bad_alloc const&) {
    return {.errores = {sinMemoria(IndexSource::history, ruta)}};
  }
}

LiveProbeResult sondear(Archivos& archivos, VidaDeProcesos& procesos, std::string const& directorio) {
  try {
    return LiveProbe::sondear(archivos, procesos, directorio);
  } catch (std::bad_alloc const&) {
    return {.errores = {sinMemoria(IndexSource::sessions, directorio)}};
  }
}

/// The history and the transcripts: whichever thread comes first reads the history, then joins the others.
std::pair<HistoryResult, TranscriptScanner::Resultado> leerLadoALado(Archivos& archivos,
                                                                     Ubicaciones const& donde) {
  TranscriptScanner::Escaneo escaneo{archivos, donde.transcripciones};
  HistoryStore::Encargo const encargo{.interesa = [&](auto const& id) { return escaneo.tiene(id); }};
  HistoryResult historia;
  std::atomic_flag empezada;
  ladoALado(escaneo.hilos(), [&] {
    if (!empezada.test_and_set()) historia = leerHistoria(archivos, donde.history, encargo);
    escaneo.leer();
  });
  return {std::move(historia), escaneo.reunir()};
}

IndexResult juntar(Archivos& archivos, VidaDeProcesos& procesos, Ubicaciones const& donde,
                   VocesDelSistema const& voces) {
  auto [historia, escaneo] = leerLadoALado(archivos, donde);
  auto sondeo = sondear(archivos, procesos, donde.sesionesVivas);
  auto resultado = SessionIndex::ensamblar(escaneo.transcripciones, historia.entradas, sondeo.vivas);
  auto const raiz = SessionIndex::raizDeClaude(donde.home);
  if (resultado.sesiones.empty() && !archivos.existe(raiz)) return soloElAvisoDeBienvenida(raiz, voces);
  auto errores = std::move(historia.errores);
  agregar(errores, std::move(escaneo.errores));
  agregar(errores, std::move(sondeo.errores));
  agregar(errores, std::move(resultado.errores));
  return {std::move(resultado.sesiones), std::move(errores)};
}

}  // namespace

namespace SessionIndex {

std::string raizDeClaude(std::string const& home) { return unirRuta(home, ".claude"); }

std::string historyPorDefecto(std::string const& home) {
  return unirRuta(raizDeClaude(home), "history.jsonl");
}

Ubicaciones ubicacionesPorDefecto(std::string const& home) {
  return {home, historyPorDefecto(home), TranscriptScanner::raizPorDefecto(home),
          LiveProbe::directorioPorOmision(home)};
}

IndexResult construir(Archivos& archivos, VidaDeProcesos& procesos, Ubicaciones const& donde,
                      VocesDelSistema const& voces) {
  try {
    return juntar(archivos, procesos, donde, voces);
  } catch (std::bad_alloc const&) {
    return {{}, {sinMemoria(IndexSource::transcripts, donde.transcripciones)}};
  }
}

}  // namespace SessionIndex
}  // namespace zorve
