#include "ZorveApp/Apertura.h"
#include "zorvectl/Eleccion.h"
#include "zorvectl/EscritorJson.h"
#include "zorvectl/Ordenes.h"
#include "zorvectl/Salida.h"
#include "zorvectl/Tabla.h"

namespace zorve::ctl {

namespace {

/// Why no terminal would be used, as an error of ours.
IndexError errorDe(FalloDeApertura const& fallo) {
  if (auto const* nuestro = std::get_if<IndexError>(&fallo)) return *nuestro;
  return {IndexSource::launcher, descripcionDe(fallo)};
}

std::string terminalesJson(MiradaDeTerminales const& mirada) {
  EscritorJson json;
  auto const resuelta = [&] {
    json.campo("identificador", mirada.resuelta->terminal->identificador());
    json.campo("origen", textoCrudo(mirada.resuelta->origen));
  };
  json.objeto([&] {
    json.lista("terminales", [&] {
      for (auto const& terminal : mirada.catalogo.conocidas) {
        json.objeto([&] {
          json.campo("identificador", terminal->identificador());
          json.campo("nombre", terminal->nombre());
          json.campo("instalada", mirada.estaInstalada(terminal));
          json.campo("puedeEnfocar", terminal->puedeEnfocar());
        });
      }
    });
    json.campo("eleccion", mirada.eleccion.value_or(std::nullopt));
    json.campo("manejador", mirada.sistema.aplicacion);
    json.campo("manejadorDichoPor", mirada.sistema.dichoPor);
    json.clave("resuelta");
    if (mirada.resuelta) {
      json.objeto(resuelta);
    } else {
      json.valor(std::nullopt);
    }
    json.lista("errores", [&] {
      if (!mirada.eleccion) agregar(json, mirada.eleccion.error());
      if (!mirada.resuelta) agregar(json, errorDe(mirada.resuelta.error()));
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

std::string notaDe(MiradaDeTerminales const& mirada, TerminalRef const& terminal) {
  if (mirada.resuelta && mirada.resuelta->terminal == terminal) {
    auto const quien = mirada.dichoPor();
    return std::string{razon(mirada.resuelta->origen)} + (quien ? " (" + *quien + ")" : "");
  }
  auto const eleccion = mirada.eleccion.value_or(std::nullopt);
  if (eleccion && buscarTerminal(*eleccion, {terminal})) return "your choice";
  return {};
}

std::string terminalesParaPersonas(MiradaDeTerminales const& mirada, Pantalla const& pantalla) {
  constexpr std::string_view tenue = "2";
  constexpr std::string_view verde = "1;32";
  Columna nombres;
  Columna identificadores{.prescindible = 1, .colores = {tenue}};
  Columna instaladas{.prescindible = 2};
  Columna notas{.corte = Corte::alFinal, .colores = {verde}};
  for (auto const& terminal : mirada.catalogo.conocidas) {
    nombres.celdas.push_back(terminal->nombre());
    identificadores.celdas.push_back(terminal->identificador());
    bool const instalada = mirada.estaInstalada(terminal);
    instaladas.celdas.emplace_back(instalada ? "installed" : "not installed");
    instaladas.colores.push_back(instalada ? "" : tenue);
    notas.celdas.push_back(notaDe(mirada, terminal));
  }
  return tabla({std::move(nombres), std::move(identificadores), std::move(instaladas), std::move(notas)},
               pantalla);
}

void mostrar(Contexto& contexto, bool json) {
  auto const home = homeDe("");
  if (!home) return terminarCon(contexto, Contexto::fallo, home.error());
  auto const servicios = serviciosDeTerminal(*home);
  auto fuentes = servicios.apertura.fuentes;
  if (json) fuentes.voces = {};
  auto const mirada = mirar(fuentes);
  if (json) return escribir(contexto, terminalesJson(mirada));
  escribir(contexto, terminalesParaPersonas(mirada, pantallaDeSalida()));
  if (!mirada.eleccion) avisar(lineaDeAviso(mirada.eleccion.error()));
  if (!mirada.resuelta) avisar(lineaDeAviso(errorDe(mirada.resuelta.error())));
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
