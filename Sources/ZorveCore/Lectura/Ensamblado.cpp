#include "ZorveCore/Lectura/Ensamblado.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "ZorveCore/Texto/Texto.h"

namespace zorve {

namespace {

constexpr std::size_t muestraDeCaidas = 3;

template <class Mapa>
auto buscar(Mapa const& mapa, std::string const& clave) {
  auto const hallado = mapa.find(clave);
  return hallado == mapa.end() ? nullptr : &hallado->second;
}

std::vector<Transcript const*> transcripcionesUnicas(std::span<Transcript const> transcripciones) {
  std::unordered_map<std::string_view, std::size_t> lugares;
  std::vector<Transcript const*> unicas;
  for (auto const& una : transcripciones) {
    auto const [lugar, nueva] = lugares.try_emplace(una.sessionId, unicas.size());
    if (nueva) {
      unicas.push_back(&una);
    } else if (unicas[lugar->second]->mtime < una.mtime) {
      unicas[lugar->second] = &una;
    }
  }
  return unicas;
}

bool sobra(std::string_view titulo) {
  return primerosCaracteres(titulo, SessionIndex::largoDelTitulo).size() < titulo.size();
}

std::string tituloDePrompt(std::string_view prompt) {
  std::string titulo;
  for (auto palabra = sacarPalabra(prompt); !palabra.empty(); palabra = sacarPalabra(prompt)) {
    if (!titulo.empty()) titulo += ' ';
    titulo += palabra;
    if (sobra(titulo)) return std::string{primerosCaracteres(titulo, SessionIndex::largoDelTitulo)} + "…";
  }
  return titulo;
}

std::string tituloDeCarpeta(std::string_view cwd) {
  auto const fin = cwd.find_last_not_of('/');
  if (fin == std::string_view::npos) return std::string{cwd};
  auto const sinBarras = cwd.substr(0, fin + 1);
  return std::string{sinBarras.substr(sinBarras.rfind('/') + 1)};
}

void titular(Session& sesion, Transcript const& t, HistoryEntry const* h) {
  sesion.tituloOrigen = t.aiTitle ? TitleSource::aiTitle : TitleSource::derivedFromFirstPrompt;
  if (t.aiTitle) {
    sesion.titulo = *t.aiTitle;
  } else {
    sesion.titulo = h != nullptr ? tituloDePrompt(h->primerPrompt) : tituloDeCarpeta(sesion.cwd);
  }
}

Session sesionDe(Transcript const& t, HistoryEntry const* h, LiveInfo const* v) {
  Session sesion;
  sesion.cwd = h != nullptr ? h->cwd : *t.cwd;
  titular(sesion, t, h);
  sesion.ultimaActividad = h != nullptr ? h->ultimoTimestamp : t.mtime;
  sesion.sessionId = t.sessionId;
  if (h != nullptr) {
    sesion.conteoPrompts = h->conteo;
    sesion.ultimoPrompt = h->ultimoPrompt;
  }
  if (v != nullptr) {
    sesion.liveState = v->estado;
    sesion.pid = v->pid;
  }
  return sesion;
}

bool vaAntes(Session const& a, Session const& b) {
  if (a.ultimaActividad != b.ultimaActividad) return a.ultimaActividad > b.ultimaActividad;
  return a.sessionId < b.sessionId;
}

IndexError avisoDeCaidas(std::vector<std::string> caidas) {
  std::ranges::sort(caidas);
  std::string mensaje = std::to_string(caidas.size()) +
                        " session(s) have a transcript but no prompts in history.jsonl; without a cwd they "
                        "cannot be reopened and were left out of the list: ";
  for (std::size_t i = 0; i < std::min(caidas.size(), muestraDeCaidas); ++i) {
    if (i > 0) mensaje += ", ";
    mensaje += caidas[i];
  }
  return {IndexSource::history, std::move(mensaje)};
}

}  // namespace

IndexResult SessionIndex::ensamblar(std::span<Transcript const> transcripciones,
                                    EntradasDeHistoria const& history, SesionesVivas const& vivas) {
  IndexResult resultado;
  std::vector<std::string> caidas;
  for (auto const* t : transcripcionesUnicas(transcripciones)) {
    auto const* const h = buscar(history, t->sessionId);
    if (h == nullptr && !t->cwd) {
      caidas.push_back(t->sessionId);
    } else {
      resultado.sesiones.push_back(sesionDe(*t, h, buscar(vivas, t->sessionId)));
    }
  }
  std::ranges::stable_sort(resultado.sesiones, vaAntes);
  if (!caidas.empty()) resultado.errores.push_back(avisoDeCaidas(std::move(caidas)));
  return resultado;
}

}  // namespace zorve
