#include "zorvectl/Objetivo.h"

#include <utility>

#include "ZorveApp/Apertura.h"
#include "ZorveApp/Textos.h"
#include "ZorvePlatform/Posix/EjecutorDeProcesos.h"
#include "zorvectl/BuscarSesion.h"
#include "zorvectl/Eleccion.h"
#include "zorvectl/Opciones.h"
#include "zorvectl/Salida.h"

namespace zorve::ctl {

namespace {

using Plan = std::expected<PlanDeApertura, SinPlan>;

std::optional<std::string> usoIncorrecto(Objetivo const& objetivo) {
  if (objetivo.cwd.has_value() != objetivo.comando.has_value()) return "--cwd and --command go together";
  int const formas = (objetivo.sesion ? 1 : 0) + (objetivo.cwd ? 1 : 0) + (objetivo.tty ? 1 : 0);
  if (formas != 1) return "name one thing: SESSION, --cwd DIR with --command LINE, or --tty TTY";
  if (objetivo.sesion == "") return "SESSION must not be empty";
  return std::nullopt;
}

std::unexpected<SinPlan> sinPlan(FalloDeApertura const& fallo) {
  return std::unexpected{SinPlan{Contexto::fallo, textoDe(fallo, Textos{Idioma::en})}};
}

std::expected<TerminalRef, SinPlan> terminalPara(ServiciosDeTerminal const& servicios,
                                                 std::optional<std::string> const& pedida) {
  if (pedida) {
    if (auto terminal = terminalConocida(servicios, *pedida)) return terminal;
    return std::unexpected{SinPlan{Contexto::malUso, terminalDesconocida(servicios, *pedida)}};
  }
  auto const mirada = mirar(servicios.apertura.fuentes);
  if (!mirada.eleccion) avisar("zorvectl: " + mirada.eleccion.error().mensaje);
  if (!mirada.resuelta) return sinPlan(mirada.resuelta.error());
  return mirada.resuelta->terminal;
}

Plan planDe(Session const& sesion, TerminalRef const& terminal, ServiciosDeTerminal const& servicios) {
  auto plan = servicios.apertura.lanzador(terminal, EjecutorDeProcesos{}).plan(sesion);
  if (!plan) return sinPlan(plan.error());
  return *std::move(plan);
}

Plan planDe(Contexto const& contexto, Objetivo const& objetivo, TerminalRef const& terminal,
            ServiciosDeTerminal const& servicios, std::string const& home) {
  if (objetivo.cwd) return terminal->planParaAbrir(*objetivo.cwd, *objetivo.comando);
  if (objetivo.tty) {
    auto plan = terminal->planParaEnfocar(*objetivo.tty);
    if (!plan) return sinPlan(plan.error());
    return *std::move(plan);
  }
  auto const leido = leerSesiones(contexto, home, contexto.voces);
  auto const sesion = buscarSesion(leido.sesiones, *objetivo.sesion);
  if (!sesion) return std::unexpected{SinPlan{Contexto::fallo, sesion.error()}};
  return planDe(**sesion, terminal, servicios);
}

}  // namespace

std::shared_ptr<Objetivo> agregarObjetivo(CLI::App& orden) {
  auto objetivo = std::make_shared<Objetivo>();
  agregarTexto(orden, "SESSION", objetivo->sesion, "A session's identifier, or a start that only it has")
      ->type_name("");
  agregarTexto(orden, "--cwd", objetivo->cwd, "Instead of a session: the directory to open")
      ->type_name("DIR");
  agregarTexto(orden, "--command", objetivo->comando, "The shell command line to run in it")
      ->type_name("LINE");
  agregarTexto(orden, "--tty", objetivo->tty, "Instead of a session: the terminal device to focus")
      ->type_name("TTY");
  agregarTexto(orden, "--terminal", objetivo->terminal,
               "Another terminal than the resolved one, by identifier")
      ->type_name("ID");
  agregarOpcionHome(orden, objetivo->home);
  return objetivo;
}

std::expected<PlanHecho, SinPlan> planear(Contexto const& contexto, Objetivo const& objetivo) {
  if (auto uso = usoIncorrecto(objetivo)) return std::unexpected{SinPlan{Contexto::malUso, *std::move(uso)}};
  auto const home = homeDe(objetivo.home);
  if (!home) return std::unexpected{SinPlan{Contexto::fallo, home.error()}};
  auto servicios = std::make_unique<ServiciosDeTerminal>(serviciosDeTerminal(*home));
  auto terminal = terminalPara(*servicios, objetivo.terminal);
  if (!terminal) return std::unexpected{std::move(terminal).error()};
  auto plan = planDe(contexto, objetivo, *terminal, *servicios, *home);
  if (!plan) return std::unexpected{std::move(plan).error()};
  return PlanHecho{std::move(servicios), *std::move(terminal), *std::move(plan)};
}

}  // namespace zorve::ctl
