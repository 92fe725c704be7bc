#include "zorvectl/Objetivo.h"
#include "zorvectl/Ordenes.h"
#include "zorvectl/PlanParaPersonas.h"
#include "zorvectl/Salida.h"

namespace zorve::ctl {

void agregarOrdenPlan(CLI::App& app, Contexto& contexto) {
  auto* const orden = app.add_subcommand("plan", "Show what opening would run, without running it");
  auto const objetivo = agregarObjetivo(*orden);
  auto const json = std::make_shared<bool>(false);
  orden->add_flag("--json", *json, "Write one JSON object");
  orden->callback([objetivo, json, &contexto] {
    auto const hecho = planear(contexto, *objetivo);
    if (!hecho) return terminarCon(contexto, hecho.error().codigo, hecho.error().linea);
    if (*json) return escribir(contexto, planJson(hecho->plan));
    escribir(contexto, planParaPersonas(hecho->plan, *hecho->terminal, pantallaDeSalida()));
  });
}

}  // namespace zorve::ctl
