#include "ZorveApp/Textos.h"
#include "ZorveCore/Texto.h"
#include "ZorvePlatform/Posix/EjecutorDeProcesos.h"
#include "zorvectl/Objetivo.h"
#include "zorvectl/Ordenes.h"
#include "zorvectl/PlanParaPersonas.h"
#include "zorvectl/Salida.h"

namespace zorve::ctl {

namespace {

/// Runs `comando`; when it fails, the line that says so.
std::optional<std::string> fallaAlCorrer(ComandoDeApertura const& comando) {
  Textos const textos{Idioma::en};
  auto const corrida = EjecutorDeProcesos{}.correr(comando.ejecutable, comando.args);
  if (!corrida) return textos.noSePudoLanzar(comando.ejecutable, corrida.error().descripcion);
  if (corrida->codigo == 0) return std::nullopt;
  auto const salida = recortar(corrida->salida);
  return textos.comandoFallo(comando.ejecutable, corrida->codigo, salida.empty() ? textos.sinSalida : salida);
}

void abrir(Contexto& contexto, Objetivo const& objetivo) {
  auto const hecho = planear(contexto, objetivo);
  if (!hecho) return terminarCon(contexto, hecho.error().codigo, hecho.error().linea);
  if (auto const* sinEnfoque = std::get_if<NoSePuedeEnfocar>(&hecho->plan)) {
    return terminarCon(contexto, Contexto::fallo, avisoSinEnfoque(contexto, *sinEnfoque, *hecho->terminal));
  }
  for (auto const& comando : std::get<std::vector<ComandoDeApertura>>(hecho->plan)) {
    if (auto const falla = fallaAlCorrer(comando)) return terminarCon(contexto, Contexto::fallo, *falla);
  }
}

}  // namespace

void agregarOrdenOpen(CLI::App& app, Contexto& contexto) {
  auto* const orden = app.add_subcommand("open", "Open a session in a terminal, or bring it to the front");
  auto const objetivo = agregarObjetivo(*orden);
  orden->callback([objetivo, &contexto] { abrir(contexto, *objetivo); });
}

}  // namespace zorve::ctl
