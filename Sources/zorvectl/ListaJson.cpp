#include "zorvectl/ListaJson.h"

#include "zorvectl/EscritorJson.h"

namespace zorve::ctl {

namespace {

void agregar(EscritorJson& json, Session const& sesion) {
  json.objeto([&] {
    json.campo("id", sesion.id());
    json.campo("titulo", sesion.titulo);
    json.campo("tituloOrigen", textoCrudo(sesion.tituloOrigen));
    json.campo("cwd", sesion.cwd);
    json.campo("kind", textoCrudo(sesion.kind));
    json.campo("liveState", textoCrudo(sesion.liveState));
    json.campo("ultimaActividad", sesion.ultimaActividad);
    json.campo("conteoPrompts", sesion.conteoPrompts);
    json.campo("ultimoPrompt", sesion.ultimoPrompt);
    json.campo("sessionId", sesion.sessionId);
    json.campo("pid", sesion.pid);
  });
}

}  // namespace

std::string listaJson(std::span<Session const* const> sesiones, std::span<IndexError const> errores) {
  EscritorJson json;
  json.objeto([&] {
    json.lista("sesiones", [&] {
      for (auto const* sesion : sesiones) agregar(json, *sesion);
    });
    json.lista("errores", [&] {
      for (auto const& error : errores) ctl::agregar(json, error);
    });
  });
  return json.hecho();
}

}  // namespace zorve::ctl
