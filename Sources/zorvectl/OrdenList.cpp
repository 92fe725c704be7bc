#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "ZorveCore/Texto/Filtro.h"
#include "ZorvePlatform/Posix/Local.h"
#include "zorvectl/ListaJson.h"
#include "zorvectl/ListaParaPersonas.h"
#include "zorvectl/Opciones.h"
#include "zorvectl/Ordenes.h"
#include "zorvectl/Salida.h"

namespace zorve::ctl {

namespace {

struct Opciones {
  bool json = false;
  std::string filtro;
  std::string home;
};

std::vector<Session const*> elegidas(IndexResult const& resultado, std::string const& filtro) {
  std::vector<Session const*> sesiones;
  for (auto const i : filtrar(resultado.sesiones, filtro, reglaDelEntorno())) {
    sesiones.push_back(&resultado.sesiones[i]);
  }
  return sesiones;
}

void mostrar(Contexto& contexto, IndexResult const& resultado, std::vector<Session const*> const& sesiones,
             std::string const& home) {
  auto const clave = largoDeClave(resultado.sesiones);
  escribir(contexto,
           listaParaPersonas(sesiones, clave, home, std::chrono::system_clock::now(), pantallaDeSalida()));
  for (auto const& error : resultado.errores) avisar(lineaDeAviso(error));
  if (!resultado.sesiones.empty() && sesiones.empty()) avisar("no matches");
  if (resultado.sesiones.empty() && resultado.errores.empty()) avisar("no sessions");
}

void listar(Contexto& contexto, Opciones const& opciones) {
  auto const home = homeDe(opciones.home);
  if (!home) return terminarCon(contexto, Contexto::fallo, home.error());
  auto const resultado = leerSesiones(contexto, *home, opciones.json ? VocesDelSistema{} : contexto.voces);
  auto const sesiones = elegidas(resultado, opciones.filtro);
  if (opciones.json) return escribir(contexto, listaJson(sesiones, resultado.errores));
  mostrar(contexto, resultado, sesiones, *home);
}

}  // namespace

void agregarOrdenList(CLI::App& app, Contexto& contexto) {
  auto const opciones = std::make_shared<Opciones>();
  auto* const orden = app.add_subcommand("list", "List the sessions, newest first");
  orden->add_flag("--json", opciones->json, "Write one JSON object instead of a table");
  orden
      ->add_option("--filter", opciones->filtro,
                   "Only sessions whose title, directory or last prompt has every word of TEXT")
      ->type_name("TEXT");
  agregarOpcionHome(*orden, opciones->home);
  orden->callback([opciones, &contexto] { listar(contexto, *opciones); });
}

}  // namespace zorve::ctl
