#include "ZorveApp/ModeloDeAjustes.h"

#include <utility>

#include "ZorveApp/Apertura.h"

namespace zorve {

namespace {

FalloDeAjustes delNucleo(IndexError const& error) { return {FalloDeAjustes::Caso::deNucleo, error.mensaje}; }

FalloDeAjustes falloDe(FalloDeApertura const& fallo) {
  if (auto const* nuestro = std::get_if<IndexError>(&fallo)) return delNucleo(*nuestro);
  return {FalloDeAjustes::Caso::terminalDesconocida, descripcionDe(fallo)};
}

bool delSistema(std::expected<TerminalResuelta, FalloDeApertura> const& resuelta) {
  return resuelta && resuelta->origen == OrigenDeLaTerminal::manejadorDelSistema;
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

/// What a load hands back; `numero` counts loads from 1.
struct ModeloDeAjustes::Carga {
  std::uint64_t numero = 0;
  std::vector<TerminalRef> instaladas;
  std::optional<std::string> eleccion;
  std::expected<TerminalResuelta, FalloDeApertura> resuelta;
  std::optional<std::string> dichoPor;
  /// Why the saved choice could not be read.
  std::optional<IndexError> ilegible;
};

ModeloDeAjustes::ModeloDeAjustes(ColaboradoresDeAjustes con) : con_{std::move(con)} {}

std::string ModeloDeAjustes::version() const {
  return con_.version.value_or(std::string{Textos{*con_.idioma.idioma()}.sinEmpaquetar});
}

void ModeloDeAjustes::escribirSeccion(SeccionDeAjustes seccion) { seccion_.escribir(seccion); }

void ModeloDeAjustes::cargar() { empezarCarga(std::nullopt); }

void ModeloDeAjustes::empezarCarga(std::optional<FalloDeAjustes> reciente) {
  falloReciente_ = std::move(reciente);
  arranqueActivo_.escribir(con_.inicio.activo());
  con_.despachador.enSegundoPlano([vida = std::weak_ptr{vida_}, &principal = con_.despachador,
                                   numero = ++ultimaCarga_, catalogo = con_.catalogo,
                                   dichoPor = con_.dichoPor, &preferencias = con_.preferencias] {
    auto carga = std::make_shared<Carga>(Carga{.numero = numero,
                                               .instaladas = catalogo.instaladas(),
                                               .eleccion = catalogo.leerEleccion(),
                                               .resuelta = resolverTerminal(catalogo)});
    if (delSistema(carga->resuelta)) carga->dichoPor = dichoPor();
    auto const leida = preferencias.leer(std::string{CatalogoDeTerminales::clavePreferencia});
    if (!leida) carga->ilegible = leida.error();
    principal.enPrincipal([vida, carga = std::move(carga)] {
      if (auto const modelo = vida.lock()) (*modelo)->terminarCarga(std::move(*carga));
    });
  });
}

void ModeloDeAjustes::terminarCarga(Carga carga) {
  if (carga.numero != ultimaCarga_) return;
  escribirFalloDe(carga);
  instaladas_.escribir(std::move(carga.instaladas));
  eleccion_.escribir(std::move(carga.eleccion));
  resuelta_.escribir(carga.resuelta ? std::optional{*std::move(carga.resuelta)} : std::nullopt);
  dichoPor_.escribir(std::move(carga.dichoPor));
  cargado_.escribir(true);
}

void ModeloDeAjustes::escribirFalloDe(Carga const& carga) {
  auto fallo = falloReciente_;
  if (!fallo && carga.ilegible) fallo = delNucleo(*carga.ilegible);
  if (!fallo && !carga.resuelta) fallo = falloDe(carga.resuelta.error());
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
  std::vector<Suscripcion> todas;
  todas.push_back(seccion_.observar(observador));
  todas.push_back(instaladas_.observar(observador));
  todas.push_back(eleccion_.observar(observador));
  todas.push_back(resuelta_.observar(observador));
  todas.push_back(dichoPor_.observar(observador));
  todas.push_back(arranqueActivo_.observar(observador));
  todas.push_back(fallo_.observar(observador));
  todas.push_back(cargado_.observar(observador));
  return todas;
}

}  // namespace zorve
