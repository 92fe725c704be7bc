#include "ZorveApp/Apertura.h"

#include <exception>
#include <utility>

#include "ZorveCore/Texto.h"

namespace zorve {

namespace {

std::string errorDeApertura(FalloDeApertura const& fallo, Textos const& textos) {
  if (auto const* nuestro = std::get_if<IndexError>(&fallo)) return nuestro->mensaje;
  return textos.noSePudoAbrir(descripcionDe(fallo));
}

std::string avisoSinEnfoque(NoSePuedeEnfocar const& plan, Terminal const& terminal, Textos const& textos) {
  if (!plan.tty) return std::string{textos.vivaSinTty};
  return textos.vivaSinEnfoque(*plan.tty, terminal.nombre());
}

std::optional<std::string> fallaAlCorrer(ComandoDeApertura const& comando, Ejecutor const& ejecutor,
                                         Textos const& textos) {
  auto const corrida = ejecutor.correr(comando.ejecutable, comando.args);
  if (!corrida) return textos.noSePudoLanzar(comando.ejecutable, corrida.error().descripcion);
  if (corrida->codigo == 0) return std::nullopt;
  auto const salida = recortar(corrida->salida);
  return textos.comandoFallo(comando.ejecutable, corrida->codigo, salida.empty() ? textos.sinSalida : salida);
}

ResultadoDeApertura abrirCon(TerminalResuelta const& resuelta, PeticionDeApertura const& peticion) {
  Launcher const lanzador{resuelta.terminal, peticion.ejecutor, peticion.rutaPs,
                          peticion.anfitrionas(peticion.catalogo.conocidas, resuelta.terminal)};
  ResultadoDeApertura resultado{.terminal = resuelta};
  auto const plan = lanzador.plan(peticion.sesion);
  if (!plan) {
    resultado.error = errorDeApertura(plan.error(), peticion.textos);
  } else if (auto const* sinEnfoque = std::get_if<NoSePuedeEnfocar>(&*plan)) {
    resultado.aviso = avisoSinEnfoque(*sinEnfoque, *resuelta.terminal, peticion.textos);
  } else {
    resultado.error =
        ejecutarComandos(std::get<std::vector<ComandoDeApertura>>(*plan), peticion.ejecutor, peticion.textos);
  }
  return resultado;
}

}  // namespace

std::optional<std::string> ejecutarComandos(std::span<ComandoDeApertura const> comandos,
                                            Ejecutor const& ejecutor, Textos const& textos) {
  for (auto const& comando : comandos) {
    if (auto falla = fallaAlCorrer(comando, ejecutor, textos)) return falla;
  }
  return std::nullopt;
}

std::string descripcionDe(FalloDeApertura const& fallo) {
  if (auto const* nuestro = std::get_if<IndexError>(&fallo)) return nuestro->mensaje;
  return std::get<FalloDelSistema>(fallo).descripcion;
}

std::expected<TerminalResuelta, FalloDeApertura> resolverTerminal(CatalogoDeTerminales const& catalogo) {
  try {
    if (catalogo.mirarElManejador) catalogo.mirarElManejador();
    auto resuelta = catalogo.resolver();
    if (!resuelta) return std::unexpected{FalloDeApertura{std::move(resuelta.error())}};
    return *std::move(resuelta);
  } catch (std::exception const& error) {
    return std::unexpected{FalloDeApertura{FalloDelSistema{0, error.what()}}};
  }
}

ResultadoDeApertura abrirSesion(PeticionDeApertura const& peticion) {
  auto const resuelta = resolverTerminal(peticion.catalogo);
  if (!resuelta) return {.error = errorDeApertura(resuelta.error(), peticion.textos)};
  return abrirCon(*resuelta, peticion);
}

}  // namespace zorve
