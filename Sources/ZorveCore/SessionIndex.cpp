#include "ZorveCore/SessionIndex.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace zorve {

namespace {

IndexResult soloElAvisoDeBienvenida(std::string const& raiz) {
  return {{},
          {{IndexSource::transcripts,
            "No Claude Code sessions on this Mac yet: " + raiz +
                " does not exist. Run `claude` once in a terminal and Zorve will list it here."}}};
}

void agregar(std::vector<IndexError>& errores, std::vector<IndexError>&& mas) {
  std::ranges::move(mas, std::back_inserter(errores));
}

HistoryResult leerHistoria(Archivos& archivos, std::string const& ruta) {
  auto historia = HistoryStore::cargar(archivos, ruta);
  if (historia) return std::move(*historia);
  return {.errores = {std::move(historia.error())}};
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

IndexResult construir(Archivos& archivos, VidaDeProcesos& procesos, Ubicaciones const& donde) {
  HistoryResult historia;
  auto escaneo = TranscriptScanner::escanear(archivos, donde.transcripciones,
                                             [&] { historia = leerHistoria(archivos, donde.history); });
  auto sondeo = LiveProbe::sondear(archivos, procesos, donde.sesionesVivas);
  auto resultado = ensamblar(escaneo.transcripciones, historia.entradas, sondeo.vivas);
  auto const raiz = raizDeClaude(donde.home);
  if (resultado.sesiones.empty() && !existe(archivos, raiz)) return soloElAvisoDeBienvenida(raiz);
  auto errores = std::move(historia.errores);
  agregar(errores, std::move(escaneo.errores));
  agregar(errores, std::move(sondeo.errores));
  agregar(errores, std::move(resultado.errores));
  return {std::move(resultado.sesiones), std::move(errores)};
}

}  // namespace SessionIndex
}  // namespace zorve
