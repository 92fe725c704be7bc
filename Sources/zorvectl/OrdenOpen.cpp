#include "ZorveApp/Apertura.h"
#include "ZorvePlatform/Posix/EjecutorDeProcesos.h"
#include "zorvectl/Objetivo.h"
#include "zorvectl/Ordenes.h"
#include "zorvectl/Salida.h"

namespace zorve::ctl {

namespace {

void abrir(Contexto& contexto, Objetivo const& objetivo) {
  auto const hecho = planear(contexto, objetivo);
  if (!hecho) return terminarCon(contexto, hecho.error().codigo, hecho.error().linea);
  if (auto const* sinEnfoque = std::get_if<NoSePuedeEnfocar>(&hecho->plan)) {
    return terminarCon(contexto, Contexto::fallo, razonDe(*sinEnfoque, *hecho->terminal, Textos{Idioma::en}));
  }
  auto const falla = ejecutarComandos(std::get<std::vector<ComandoDeApertura>>(hecho->plan),
                                      EjecutorDeProcesos{}, Textos{Idioma::en});
  if (falla) terminarCon(contexto, Contexto::fallo, *falla);
}

}  // namespace

void agregarOrdenOpen(CLI::App& app, Contexto& contexto) {
  auto* const orden = app.add_subcommand("open", "Open a session in a terminal, or bring it to the front");
  auto const objetivo = agregarObjetivo(*orden);
  orden->callback([objetivo, &contexto] { abrir(contexto, *objetivo); });
}

}  // namespace zorve::ctl
