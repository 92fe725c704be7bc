#include "ZorveApp/VistaAjustes.h"

#include <utility>

namespace zorve {

namespace {

std::optional<std::string> notaDeLaAutomatica(std::optional<TerminalResuelta> const& resuelta,
                                              Textos const& textos) {
  if (!resuelta) return std::nullopt;
  switch (resuelta->origen) {
    case OrigenDeLaTerminal::manejadorDelSistema:
      return textos.hoyLaDelSistema(resuelta->terminal->nombre());
    case OrigenDeLaTerminal::unicaInstalada:
      return textos.hoyLaUnica(resuelta->terminal->nombre());
    default:
      return std::nullopt;
  }
}

}  // namespace

std::string_view titulo(SeccionDeAjustes seccion, Idioma idioma) {
  switch (seccion) {
    case SeccionDeAjustes::general:
      return "General";
    case SeccionDeAjustes::terminal:
      return "Terminal";
    default:
      return idioma == Idioma::es ? "Acerca de" : "About";
  }
}

std::string_view simbolo(SeccionDeAjustes seccion) {
  switch (seccion) {
    case SeccionDeAjustes::general:
      return "gearshape";
    case SeccionDeAjustes::terminal:
      return "terminal";
    default:
      return "info.circle";
  }
}

VistaAjustes::VistaAjustes(ModeloDeAjustes& modelo, PreferenciaDeIdioma const& idioma, Modificador principal)
    : modelo_{modelo}, idioma_{idioma}, principal_{principal} {}

void VistaAjustes::ponerInterruptor(InterruptorDeVentanas& interruptor) {
  interruptor_ = &interruptor;
  // Which terminals can focus may follow it.
  alCambiarElInterruptor_ = interruptor.estado().observar([this] { modelo_.cargar(); });
}

std::vector<Suscripcion> VistaAjustes::observar(std::function<void()> const& observador) const {
  auto todas = modelo_.observar(observador);
  todas.push_back(idioma_.idioma().observar(observador));
  if (interruptor_ != nullptr) {
    todas.push_back(interruptor_->estado().observar(observador));
    todas.push_back(interruptor_->rechazo().observar(observador));
  }
  return todas;
}

void VistaAjustes::aparecer() {
  modelo_.cargar();
  if (interruptor_ != nullptr) interruptor_->mirar();
}

std::vector<FilaDeSeccion> VistaAjustes::secciones() const {
  std::vector<FilaDeSeccion> filas;
  for (auto const seccion : todosLosCasos<SeccionDeAjustes>()) {
    filas.push_back({.seccion = seccion,
                     .titulo = titulo(seccion, *idioma_.idioma()),
                     .simbolo = simbolo(seccion),
                     .elegida = seccion == *modelo_.seccion()});
  }
  return filas;
}

void VistaAjustes::clicEnSeccion(SeccionDeAjustes seccion) { modelo_.escribirSeccion(seccion); }

std::optional<std::string> VistaAjustes::banda() const {
  if (interruptor_ != nullptr && *interruptor_->rechazo()) {
    return TextosDelInterruptor::banda(**interruptor_->rechazo(), *idioma_.idioma());
  }
  if (!*modelo_.fallo()) return std::nullopt;
  return (*modelo_.fallo())->banda(textos());
}

ContenidoDeAjustes VistaAjustes::general() const {
  auto const t = textos();
  Grupo inicio{t.seccionInicio,
               {{.marcada = *modelo_.arranqueActivo(),
                 .titulo = std::string{t.abrirAlIniciarSesion},
                 .cuadro = true,
                 .accion = [&modelo = modelo_] { modelo.alternarArranque(); }}}};
  Grupo idiomas{t.seccionIdioma, {}};
  for (auto const idioma : todosLosCasos<Idioma>()) {
    idiomas.opciones.push_back({.marcada = idioma == *idioma_.idioma(),
                                .titulo = std::string{nombrePropio(idioma)},
                                .accion = [&modelo = modelo_, idioma] { modelo.elegirIdioma(idioma); }});
  }
  return {.grupos = {std::move(inicio), std::move(idiomas)}};
}

ContenidoDeAjustes VistaAjustes::terminal() const {
  if (modelo_.instaladas()->empty()) {
    return {.grupos = {}, .texto = *modelo_.cargado() ? textos().sinTerminalCompatible : std::string{}};
  }
  Grupo columna{{}, {opcionAutomatica()}};
  for (auto const& instalada : *modelo_.instaladas()) columna.opciones.push_back(opcionDe(*instalada));
  ContenidoDeAjustes contenido{.grupos = {std::move(columna)}};
  bool const hay = interruptor_ != nullptr && *interruptor_->estado();
  if (hay) contenido.grupos.push_back({{}, {opcionDelInterruptor()}});
  return contenido;
}

Opcion VistaAjustes::opcionDelInterruptor() const {
  auto const estado = **interruptor_->estado();
  return {.marcada = estado == InterruptorDeVentanas::Estado::encendido,
          .titulo = std::string{TextosDelInterruptor::titulo(*idioma_.idioma())},
          .nota = std::string{TextosDelInterruptor::nota(estado, *idioma_.idioma())},
          .cuadro = true,
          .accion = [interruptor = interruptor_] { interruptor->alternar(); }};
}

Opcion VistaAjustes::opcionAutomatica() const {
  auto const t = textos();
  return {.marcada = !modelo_.eleccion()->has_value(),
          .titulo = std::string{t.laQueDecidaZorve},
          .nota = notaDeLaAutomatica(*modelo_.resuelta(), t),
          .accion = [&modelo = modelo_] { modelo.elegirTerminal(std::nullopt); }};
}

Opcion VistaAjustes::opcionDe(Terminal const& terminal) const {
  auto const identificador = terminal.identificador();
  return {
      .marcada = identificador == *modelo_.eleccion(),
      .titulo = terminal.nombre(),
      .nota = terminal.puedeEnfocar() ? std::nullopt : std::optional{std::string{textos().noPuedeEnfocar}},
      .accion = [&modelo = modelo_, identificador] { modelo.elegirTerminal(identificador); }};
}

AcercaDe VistaAjustes::acercaDe() const {
  return {.nombreYVersion = "Zorve " + modelo_.version(), .paraCerrar = textos().paraCerrarZorve};
}

bool VistaAjustes::tecla(Pulsacion const& pulsacion) {
  auto const accion = accionDeAjustes(pulsacion, principal_);
  if (accion == AccionDeAjustes::cerrar) acciones.cerrar();
  if (accion == AccionDeAjustes::salir) acciones.salir();
  return accion.has_value();
}

}  // namespace zorve
