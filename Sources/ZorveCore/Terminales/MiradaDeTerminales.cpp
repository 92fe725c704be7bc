#include "ZorveCore/Terminales/MiradaDeTerminales.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace zorve {

namespace {

void preguntar(MiradaDeTerminales& mirada, FuentesDeTerminales const& fuentes) {
  auto& catalogo = mirada.catalogo;
  mirada.instaladas = catalogo.instaladas();
  mirada.eleccion = fuentes.eleccion();
  mirada.sistema = fuentes.sistema();
  catalogo.leerEleccion = [dicha = mirada.eleccion.value_or(std::nullopt)] { return dicha; };
  catalogo.manejadorDelSistema = [dicho = mirada.sistema.aplicacion] { return dicho; };
  if (auto resuelta = catalogo.resolver()) {
    mirada.resuelta = *std::move(resuelta);
  } else {
    mirada.resuelta = std::unexpected{FalloDeApertura{std::move(resuelta).error()}};
  }
}

}  // namespace

FuentesDeTerminales fuentesDelSistema(std::vector<TerminalRef> conocidas,
                                      ManejadorDelSistema const& manejador, Preferencias const& preferencias,
                                      VocesDelSistema const& voces) {
  return {.conocidas = std::move(conocidas),
          .sistema = [&manejador] { return manejador.preguntar(CatalogoDeTerminales::tipoDeGuionDeShell); },
          .eleccion = [&preferencias] { return leerLaEleccion(preferencias); },
          .voces = voces};
}

bool MiradaDeTerminales::estaInstalada(TerminalRef const& terminal) const {
  return std::ranges::find(instaladas, terminal) != instaladas.end();
}

std::optional<std::string> MiradaDeTerminales::dichoPor() const {
  bool const esLaDelSistema = resuelta && resuelta->origen == OrigenDeLaTerminal::manejadorDelSistema;
  return esLaDelSistema ? sistema.dichoPor : std::nullopt;
}

MiradaDeTerminales mirar(FuentesDeTerminales const& fuentes) {
  MiradaDeTerminales mirada{.catalogo = {.conocidas = fuentes.conocidas, .voces = fuentes.voces}};
  try {
    preguntar(mirada, fuentes);
  } catch (std::exception const& error) {
    mirada.resuelta = std::unexpected{FalloDeApertura{FalloDelSistema{0, error.what()}}};
  }
  return mirada;
}

}  // namespace zorve
