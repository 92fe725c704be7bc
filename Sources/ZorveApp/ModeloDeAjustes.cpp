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
  guardar({[&preferencias = con_.preferencias, identificador] { return elegir(preferencias, identificador); },
           &ModeloDeAjustes::trasLaTerminal});
}

void ModeloDeAjustes::elegirIdioma(Idioma idioma) {
  guardar({con_.idioma.elegir(idioma), &ModeloDeAjustes::trasElIdioma});
}

void ModeloDeAjustes::guardar(PorGuardar uno) {
  porGuardar_.push_back(std::move(uno));
  if (porGuardar_.size() == 1) guardarElPrimero();
}

void ModeloDeAjustes::guardarElPrimero() {
  enFondo(con_.despachador, vida_, porGuardar_.front().cambio, &ModeloDeAjustes::terminarGuardado);
}

void ModeloDeAjustes::terminarGuardado(Guardado guardado) {
  auto const alAcabar = porGuardar_.front().alAcabar;
  porGuardar_.pop_front();
  if (!porGuardar_.empty()) guardarElPrimero();
  (this->*alAcabar)(guardado);
}

void ModeloDeAjustes::trasLaTerminal(Guardado const& guardado) {
  falloDeGuardar_ = guardado ? std::nullopt : std::optional{delNucleo(guardado.error())};
  empezarCarga(falloDeGuardar_);
}

void ModeloDeAjustes::trasElIdioma(Guardado const& guardado) {
  auto const anterior =
      std::exchange(falloDeGuardar_, guardado ? std::nullopt : std::optional{delNucleo(guardado.error())});
  if (falloDeGuardar_) {
    falloReciente_ = falloDeGuardar_;
    fallo_.escribir(falloReciente_);
  } else if (anterior && *fallo_ == anterior) {
    fallo_.escribir(std::nullopt);
    empezarCarga(std::nullopt);
  }
}

std::vector<Suscripcion> ModeloDeAjustes::observar(std::function<void()> const& observador) const {
  return observarTodas(observador, seccion_, instaladas_, eleccion_, resuelta_, dichoPor_, arranqueActivo_,
                       fallo_, cargado_);
}

}  // namespace zorve
