#include "ZorveApp/ModeloDeAjustes.h"

#include <utility>

#include "ZorveApp/Apertura.h"
#include "ZorveApp/TareaDeFondo.h"

namespace zorve {

namespace {

FalloDeAjustes delNucleo(IndexError const& error) { return {FalloDeAjustes::Caso::deNucleo, error.mensaje}; }

FalloDeAjustes falloDe(FalloDeApertura const& fallo) {
  if (auto const* nuestro = std::get_if<IndexError>(&fallo)) return delNucleo(*nuestro);
  return {FalloDeAjustes::Caso::terminalDesconocida, descripcionDe(fallo)};
}

}  // namespace

std::string FalloDeAjustes::banda(Textos const& textos) const {
  switch (caso) {
    case Caso::terminalDesconocida:
      return textos.noSePudoResolverLaTerminal(texto);
    case Caso::arranque:
      return textos.noSePudoCambiarArranque(texto);
    default:
      return texto;
  }
}

ModeloDeAjustes::ModeloDeAjustes(ColaboradoresDeAjustes con) : con_{std::move(con)} {}

std::string ModeloDeAjustes::version() const {
  return con_.version.value_or(std::string{textosDe(con_.idioma).sinEmpaquetar});
}

void ModeloDeAjustes::escribirSeccion(SeccionDeAjustes seccion) { seccion_.escribir(seccion); }

void ModeloDeAjustes::cargar() { empezarCarga(std::nullopt); }

void ModeloDeAjustes::empezarCarga(std::optional<FalloDeAjustes> reciente) {
  falloReciente_ = std::move(reciente);
  arranqueActivo_.escribir(con_.inicio.activo());
  enFondo(
      con_.despachador, vida_,
      [numero = ++ultimaCarga_, terminales = con_.terminales] { return Carga{numero, mirar(terminales)}; },
      &ModeloDeAjustes::terminarCarga);
}

void ModeloDeAjustes::terminarCarga(Carga carga) {
  if (carga.numero != ultimaCarga_) return;
  auto& mirada = carga.mirada;
  escribirFalloDe(mirada);
  auto quien = mirada.dichoPor();
  instaladas_.escribir(std::move(mirada.instaladas));
  eleccion_.escribir(mirada.eleccion.value_or(std::nullopt));
  resuelta_.escribir(mirada.resuelta ? std::optional{*std::move(mirada.resuelta)} : std::nullopt);
  dichoPor_.escribir(std::move(quien));
  cargado_.escribir(true);
}

void ModeloDeAjustes::escribirFalloDe(MiradaDeTerminales const& mirada) {
  auto fallo = falloReciente_;
  if (!fallo && !mirada.eleccion) fallo = delNucleo(mirada.eleccion.error());
  if (!fallo && !mirada.resuelta) fallo = falloDe(mirada.resuelta.error());
  fallo_.escribir(std::move(fallo));
}

void ModeloDeAjustes::alternarArranque() {
  auto const cambio = *arranqueActivo_ ? con_.inicio.retirar() : con_.inicio.registrar();
  falloReciente_ =
      cambio ? std::nullopt : std::optional{FalloDeAjustes{FalloDeAjustes::Caso::arranque, cambio.error()}};
  fallo_.escribir(falloReciente_);
  arranqueActivo_.escribir(con_.inicio.activo());
}

void ModeloDeAjustes::elegirTerminal(std::optional<std::string> const& identificador) {
  auto const guardado = elegir(con_.preferencias, identificador);
  empezarCarga(guardado ? std::nullopt : std::optional{delNucleo(guardado.error())});
}

void ModeloDeAjustes::elegirIdioma(Idioma idioma) {
  auto const guardado = con_.idioma.elegir(idioma);
  if (guardado) return;
  falloReciente_ = delNucleo(guardado.error());
  fallo_.escribir(falloReciente_);
}

std::vector<Suscripcion> ModeloDeAjustes::observar(std::function<void()> const& observador) const {
  return observarTodas(observador, seccion_, instaladas_, eleccion_, resuelta_, dichoPor_, arranqueActivo_,
                       fallo_, cargado_);
}

}  // namespace zorve
