#include "ZorveCore/TextoVisible.h"
#include "zorvectl/Eleccion.h"
#include "zorvectl/EscritorJson.h"
#include "zorvectl/Ordenes.h"
#include "zorvectl/Salida.h"
#include "zorvectl/Tabla.h"

namespace zorve::ctl {

namespace {

/// Everything there is to say of the terminals, asked for once.
struct Estado {
  std::vector<TerminalRef> conocidas;
  std::optional<std::string> eleccion;
  std::optional<std::string> manejador;
  /// Where the system says so.
  std::optional<std::string> dichoPor;
  std::expected<TerminalResuelta, IndexError> resuelta;
  /// Why the settings could not be read.
  std::optional<IndexError> aviso;
};

Estado estadoDe(ServiciosDeTerminal const& servicios) {
  auto const catalogo = servicios.catalogo();
  auto const leida = servicios.preferencias->leer(std::string{CatalogoDeTerminales::clavePreferencia});
  return {.conocidas = catalogo.conocidas,
          .eleccion = catalogo.leerEleccion(),
          .manejador = catalogo.manejadorDelSistema(),
          .dichoPor = servicios.manejador->dichoPor(CatalogoDeTerminales::tipoDeGuionDeShell),
          .resuelta = catalogo.resolver(),
          .aviso = leida ? std::nullopt : std::optional{leida.error()}};
}

std::string terminalesJson(Estado const& estado) {
  EscritorJson json;
  auto const resuelta = [&] {
    json.campo("identificador", estado.resuelta->terminal->identificador());
    json.campo("origen", textoCrudo(estado.resuelta->origen));
  };
  json.objeto([&] {
    json.lista("terminales", [&] {
      for (auto const& terminal : estado.conocidas) {
        json.objeto([&] {
          json.campo("identificador", terminal->identificador());
          json.campo("nombre", terminal->nombre());
          json.campo("instalada", terminal->estaInstalada());
          json.campo("puedeEnfocar", terminal->puedeEnfocar());
        });
      }
    });
    json.campo("eleccion", estado.eleccion);
    json.campo("manejador", estado.manejador);
    json.campo("manejadorDichoPor", estado.dichoPor);
    json.clave("resuelta");
    if (estado.resuelta) {
      json.objeto(resuelta);
    } else {
      json.valor(std::nullopt);
    }
    json.lista("errores", [&] {
      if (estado.aviso) agregar(json, *estado.aviso);
      if (!estado.resuelta) agregar(json, estado.resuelta.error());
    });
  });
  return json.hecho();
}

std::string_view razon(OrigenDeLaTerminal origen) {
  switch (origen) {
    case OrigenDeLaTerminal::eleccionDeLaPersona:
      return "sessions open here: your choice";
    case OrigenDeLaTerminal::manejadorDelSistema:
      return "sessions open here: the system's terminal";
    case OrigenDeLaTerminal::unicaInstalada:
      break;
  }
  return "sessions open here: the only one installed";
}

std::string notaDe(Estado const& estado, TerminalRef const& terminal) {
  if (estado.resuelta && estado.resuelta->terminal == terminal) {
    auto const origen = estado.resuelta->origen;
    auto nota = std::string{razon(origen)};
    if (origen == OrigenDeLaTerminal::manejadorDelSistema && estado.dichoPor) {
      nota += " (" + *estado.dichoPor + ")";
    }
    return nota;
  }
  if (estado.eleccion && buscarTerminal(*estado.eleccion, {terminal})) return "your choice";
  return {};
}

std::string terminalesParaPersonas(Estado const& estado, Pantalla const& pantalla) {
  constexpr std::string_view tenue = "2";
  constexpr std::string_view verde = "1;32";
  Columna nombres;
  Columna identificadores{.prescindible = 1, .colores = {tenue}};
  Columna instaladas{.prescindible = 2};
  Columna notas{.corte = Corte::alFinal, .colores = {verde}};
  for (auto const& terminal : estado.conocidas) {
    nombres.celdas.push_back(terminal->nombre());
    identificadores.celdas.push_back(terminal->identificador());
    instaladas.celdas.emplace_back(terminal->estaInstalada() ? "installed" : "not installed");
    instaladas.colores.push_back(terminal->estaInstalada() ? "" : tenue);
    notas.celdas.push_back(notaDe(estado, terminal));
  }
  return tabla({std::move(nombres), std::move(identificadores), std::move(instaladas), std::move(notas)},
               pantalla);
}

void mostrar(Contexto& contexto, bool json) {
  auto const home = hogarDe("");
  if (!home) return terminarCon(contexto, Contexto::fallo, home.error());
  auto const servicios = serviciosDeTerminal(*home);
  auto const estado = estadoDe(servicios);
  if (json) return escribir(contexto, terminalesJson(estado));
  escribir(contexto, terminalesParaPersonas(estado, pantallaDeSalida()));
  if (estado.aviso) avisar(lineaDeAviso(contexto, *estado.aviso));
  if (!estado.resuelta) avisar(lineaDeAviso(contexto, estado.resuelta.error()));
}

}  // namespace

void agregarOrdenTerminals(CLI::App& app, Contexto& contexto) {
  auto* const orden =
      app.add_subcommand("terminals", "List the known terminals and the one that sessions open in");
  auto const json = std::make_shared<bool>(false);
  orden->add_flag("--json", *json, "Write one JSON object instead of a table");
  orden->callback([json, &contexto] { mostrar(contexto, *json); });
}

}  // namespace zorve::ctl
