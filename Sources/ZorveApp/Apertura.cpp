#include "ZorveApp/Apertura.h"

#include "ZorveApp/DirectorioPerdido.h"
#include "ZorveApp/FraseDeTecleo.h"
#include "ZorveApp/InterruptorDeVentanas.h"
#include "ZorveCore/Terminales/Tecleado.h"
#include "ZorveCore/Texto/Texto.h"

namespace zorve {

namespace {

std::string avisoDe(NoSePuedeEnfocar const& plan, Anfitriona const& anfitriona, Textos const& textos) {
  return plan.tty ? textos.vivaSinEnfoque(*plan.tty, anfitriona.nombre()) : textos.vivaSinTty;
}

std::optional<std::string> fallaAlCorrer(ComandoDeApertura const& comando, Ejecutor const& ejecutor,
                                         Textos const& textos) {
  auto const corrida = ejecutor.correr(comando.ejecutable, comando.args);
  if (!corrida) return textos.noSePudoLanzar(comando.ejecutable, corrida.error().descripcion);
  if (corrida->codigo == 0) return std::nullopt;
  auto const salida = recortar(corrida->salida);
  return textos.comandoFallo(comando.ejecutable, corrida->codigo, salida.empty() ? textos.sinSalida : salida);
}

/// A session that runs is brought to the front wherever its directory is.
bool faltaSuDirectorio(PeticionDeApertura const& peticion) {
  auto const& [sesion, servicios, ejecutor, textos, directorios] = peticion;
  if (directorios == nullptr || sesion.liveState != LiveState::dead) return false;
  return !directorios->losQueFaltan(std::span{&sesion.cwd, 1}).empty();
}

ResultadoDeApertura abrirCon(TerminalResuelta const& resuelta, PeticionDeApertura const& peticion,
                             std::function<void(TerminalResuelta const&)> const& alPlanear) {
  ResultadoDeApertura resultado{.terminal = resuelta};
  auto const plan = peticion.servicios.lanzador(resuelta.terminal, peticion.ejecutor).plan(peticion.sesion);
  if (alPlanear) alPlanear(resuelta);
  if (!plan) {
    resultado.error = textoDe(plan.error(), peticion.textos);
  } else if (auto const* sinEnfoque = std::get_if<NoSePuedeEnfocar>(&*plan)) {
    resultado.aviso = avisoDe(*sinEnfoque, *resuelta.terminal, peticion.textos);
    if (sinEnfoque->tty && peticion.servicios.faltaUnInterruptor()) {
      resultado.consejo = TextosDelInterruptor::consejo(peticion.textos.idioma);
    }
  } else if (faltaSuDirectorio(peticion)) {
    resultado.error = TextosDelDirectorio::alAbrir(peticion.sesion.cwd, peticion.textos.idioma);
  } else {
    resultado.error =
        ejecutarComandos(std::get<std::vector<ComandoDeApertura>>(*plan), peticion.ejecutor, peticion.textos);
  }
  return resultado;
}

}  // namespace

std::optional<std::string> ejecutarComandos(std::span<ComandoDeApertura const> comandos,
                                            Ejecutor const& ejecutor, Textos const& textos) {
  if (auto const directorio = loQueNoSeTeclea(comandos)) return noSeTeclea(*directorio, textos.idioma);
  for (auto const& comando : comandos) {
    if (auto falla = fallaAlCorrer(comando, ejecutor, textos)) return falla;
  }
  return std::nullopt;
}

std::string descripcionDe(FalloDeApertura const& fallo) {
  if (auto const* nuestro = std::get_if<IndexError>(&fallo)) return nuestro->mensaje;
  return std::get<FalloDelSistema>(fallo).descripcion;
}

std::string textoDe(FalloDeApertura const& fallo, Textos const& textos) {
  auto const descripcion = descripcionDe(fallo);
  return std::holds_alternative<IndexError>(fallo) ? descripcion : textos.noSePudoAbrir(descripcion);
}

std::string razonDe(NoSePuedeEnfocar const& plan, Anfitriona const& anfitriona, Textos const& textos) {
  return plan.tty ? textos.sinEnfoque(*plan.tty, anfitriona.nombre()) : textos.sinTty();
}

ResultadoDeApertura abrirSesion(PeticionDeApertura const& peticion,
                                std::function<void(TerminalResuelta const&)> const& alPlanear) {
  auto const resuelta = mirar(peticion.servicios.fuentes).resuelta;
  if (!resuelta) return {.error = textoDe(resuelta.error(), peticion.textos)};
  return abrirCon(*resuelta, peticion, alPlanear);
}

}  // namespace zorve
