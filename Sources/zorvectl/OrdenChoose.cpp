#include "zorvectl/Eleccion.h"
#include "zorvectl/Opciones.h"
#include "zorvectl/Ordenes.h"
#include "zorvectl/Salida.h"

namespace zorve::ctl {

namespace {

struct Opciones {
  std::optional<std::string> identificador;
  bool automatica = false;
};

void guardar(Contexto& contexto, ServiciosDeTerminal const& servicios,
             std::optional<std::string> const& identificador, std::string const& hecho) {
  auto const guardada = elegir(*servicios.preferencias, identificador);
  if (!guardada) return terminarCon(contexto, Contexto::fallo, guardada.error().mensaje);
  escribir(contexto, hecho + "\n");
}

void elegirUna(Contexto& contexto, ServiciosDeTerminal const& servicios, std::string const& identificador) {
  auto const terminal = terminalConocida(servicios, identificador);
  if (!terminal)
    return terminarCon(contexto, Contexto::malUso, terminalDesconocida(servicios, identificador));
  guardar(contexto, servicios, terminal->identificador(),
          "Sessions open in " + terminal->nombre() + " from now on.");
  if (contexto.codigo == Contexto::hecho && !terminal->estaInstalada()) {
    avisar("zorvectl: warning: " + terminal->nombre() +
           " is not installed; nothing can be opened until it is");
  }
}

void elegirLoPedido(Contexto& contexto, Opciones const& opciones) {
  if (opciones.identificador.has_value() == opciones.automatica) {
    return terminarCon(contexto, Contexto::malUso, "name one thing: ID or --auto");
  }
  auto const home = homeDe("");
  if (!home) return terminarCon(contexto, Contexto::fallo, home.error());
  auto const servicios = serviciosDeTerminal(*home);
  if (opciones.identificador) return elegirUna(contexto, servicios, *opciones.identificador);
  guardar(contexto, servicios, std::nullopt, "Zorve picks the terminal from now on.");
}

}  // namespace

void agregarOrdenChoose(CLI::App& app, Contexto& contexto) {
  auto const opciones = std::make_shared<Opciones>();
  auto* const orden = app.add_subcommand("choose", "Choose the terminal that sessions open in");
  agregarTexto(*orden, "ID", opciones->identificador,
               "A terminal's identifier, as `zorvectl terminals` lists it")
      ->type_name("");
  orden->add_flag("--auto", opciones->automatica, "Forget the choice: let Zorve pick");
  orden->callback([opciones, &contexto] { elegirLoPedido(contexto, *opciones); });
}

}  // namespace zorve::ctl
