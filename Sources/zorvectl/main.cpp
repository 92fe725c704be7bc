#include <clocale>
#include <exception>

#include "ZorvePlatform/Posix/ArchivosPosix.h"
#include "ZorvePlatform/Posix/ProcesoHijo.h"
#include "ZorvePlatform/Posix/VidaDeProcesosPosix.h"
#include "ZorvePlatform/ServiciosDeTerminal.h"
#include "zorvectl/Ordenes.h"
#include "zorvectl/Salida.h"

namespace {

void agregarOrdenes(CLI::App& app, zorve::ctl::Contexto& contexto) {
  zorve::ctl::agregarOrdenList(app, contexto);
  zorve::ctl::agregarOrdenPlan(app, contexto);
  zorve::ctl::agregarOrdenOpen(app, contexto);
  zorve::ctl::agregarOrdenTerminals(app, contexto);
  zorve::ctl::agregarOrdenChoose(app, contexto);
#if defined(ZORVE_PANEL_EN_TERMINAL)
  zorve::ctl::agregarOrdenPanel(app, contexto);
#endif
}

int correr(int cuantos, char** palabras) {
  zorve::ArchivosPosix archivos;
  zorve::VidaDeProcesosPosix procesos;
  zorve::ctl::Contexto contexto{.archivos = archivos, .procesos = procesos, .voces = zorve::vocesDeAqui()};
  CLI::App app{"Lists Claude Code sessions and opens them in a terminal.", "zorvectl"};
  app.set_version_flag("--version", "zorvectl " ZORVE_VERSION);
  app.require_subcommand(1);
  agregarOrdenes(app, contexto);
  try {
    app.parse(cuantos, palabras);
  } catch (CLI::CallForHelp const&) {
    zorve::ctl::escribir(contexto, app.help());
  } catch (CLI::CallForVersion const& version) {
    zorve::ctl::escribir(contexto, std::string{version.what()} + "\n");
  } catch (CLI::ParseError const& error) {
    zorve::ctl::terminarCon(contexto, zorve::ctl::Contexto::malUso,
                            std::string{error.what()} + " (zorvectl --help tells how)");
  }
  return contexto.codigo;
}

}  // namespace

int main(int cuantos, char** palabras) {
  zorve::recordarALosHijos();
  try {
    return correr(cuantos, palabras);
  } catch (std::exception const& error) {
    zorve::ctl::avisar(std::string{"zorvectl: "} + error.what());
    return zorve::ctl::Contexto::fallo;
  }
}
