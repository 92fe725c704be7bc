#include "ZorveApp/ModeloDeVista.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "ZorveApp/LineaDeReanudacion.h"
#include "ZorveApp/TareaDeFondo.h"

namespace zorve {

namespace {

/// How many directories are looked at after a load, those of the latest sessions.
constexpr std::size_t directoriosMirados = 4096;

std::string const& identificadorDe(Session const& sesion) {
  return sesion.sessionId ? *sesion.sessionId : sesion.cwd;
}

bool seLlama(Session const& sesion, std::string_view id) {
  auto const prefijo = textoCrudo(SessionKind::claude);
  return id.starts_with(prefijo) && id.substr(prefijo.size()).starts_with(':') &&
         id.substr(prefijo.size() + 1) == identificadorDe(sesion);
}

/// Each once, in the order of the sessions.
std::vector<std::string> directoriosDe(std::span<Session const> sesiones) {
  std::vector<std::string> rutas;
  std::set<std::string_view> vistas;
  for (auto const& sesion : sesiones) {
    if (rutas.size() == directoriosMirados) break;
    if (vistas.insert(sesion.cwd).second) rutas.push_back(sesion.cwd);
  }
  return rutas;
}

}  // namespace

/// What resolving the terminal gave, and when it was asked: later resolutions have higher turns.
struct ModeloDeVista::Resolucion {
  std::uint64_t turno = 0;
  std::expected<TerminalResuelta, FalloDeApertura> terminal;
};

/// What a load hands back.
struct ModeloDeVista::Carga {
  IndexResult resultado;
  TextosPlegados plegados;
  Resolucion resolucion;
};

ModeloDeVista::ModeloDeVista(ColaboradoresDelModelo con) : con_{std::move(con)}, lista_{con_.regla} {}

std::optional<std::size_t> ModeloDeVista::posicionSeleccionada() const {
  if (!*seleccion_) return std::nullopt;
  auto const visibles = lista_.visibles();
  auto const lugar = std::ranges::find_if(
      visibles, [&](std::size_t i) { return seLlama(resultado_->sesiones[i], **seleccion_); });
  if (lugar == visibles.end()) return std::nullopt;
  return static_cast<std::size_t>(lugar - visibles.begin());
}

Session const* ModeloDeVista::seleccionada() const {
  auto const posicion = posicionSeleccionada();
  return posicion ? &resultado_->sesiones[visibles()[*posicion]] : nullptr;
}

std::vector<std::string> ModeloDeVista::mensajesDeError() const {
  std::vector<std::string> mensajes;
  for (auto const& error : resultado_->errores) {
    mensajes.push_back(std::string{textoCrudo(error.fuente)} + ": " + error.mensaje);
  }
  if (*errorTerminal_) mensajes.push_back(**errorTerminal_);
  if (*error_) mensajes.push_back(**error_);
  return mensajes;
}

std::string ModeloDeVista::terminalParaElPie() const {
  if (!*terminal_) return std::string{textos().sinTerminal};
  auto const& [terminal, origen] = **terminal_;
  switch (origen) {
    case OrigenDeLaTerminal::manejadorDelSistema:
      return textos().pieDelSistema(terminal->nombre());
    case OrigenDeLaTerminal::unicaInstalada:
      return textos().pieLaUnica(terminal->nombre());
    default:
      return terminal->nombre();
  }
}

void ModeloDeVista::escribirConsulta(std::string texto) {
  if (texto != *consulta_) {
    lista_.cambiarConsulta(texto);
    consulta_.escribir(std::move(texto));
  }
  corregirSeleccion();
}

void ModeloDeVista::escribirResultado(IndexResult nuevo) {
  TextosPlegados plegados{nuevo.sesiones, con_.regla};
  ponerResultado(std::move(nuevo), std::move(plegados));
}

void ModeloDeVista::ponerResultado(IndexResult nuevo, TextosPlegados plegados) {
  lista_.cambiarTextos(std::move(plegados));
  resultado_.escribir(std::move(nuevo));
  corregirSeleccion();
}

void ModeloDeVista::corregirSeleccion() {
  if (posicionSeleccionada()) return;
  escribirSeleccion(visibles().empty() ? std::nullopt : std::optional{std::size_t{0}});
}

void ModeloDeVista::escribirSeleccion(std::optional<std::size_t> fila) {
  seleccion_.escribir(fila ? std::optional{resultado_->sesiones[visibles()[*fila]].id()} : std::nullopt);
}

void ModeloDeVista::seleccionar(std::string_view id) {
  auto const esta = [&](std::size_t i) { return seLlama(resultado_->sesiones[i], id); };
  if (std::ranges::any_of(visibles(), esta)) seleccion_.escribir(std::string{id});
}

void ModeloDeVista::mover(int delta) {
  if (visibles().empty()) return;
  auto const desde = static_cast<std::int64_t>(posicionSeleccionada().value_or(0));
  auto const ultima = static_cast<std::int64_t>(visibles().size()) - 1;
  escribirSeleccion(static_cast<std::size_t>(std::clamp<std::int64_t>(desde + delta, 0, ultima)));
}

void ModeloDeVista::refrescar() {
  if (*refrescando_) return;
  refrescando_.escribir(true);
  enFondo(
      con_.despachador, vida_,
      [cargar = con_.cargar, fuentes = con_.servicios.fuentes, regla = con_.regla, turnos = turnos_] {
        auto resultado = cargar();
        TextosPlegados plegados{resultado.sesiones, regla};
        auto const turno = ++*turnos;
        return Carga{std::move(resultado), std::move(plegados), {turno, mirar(fuentes).resuelta}};
      },
      &ModeloDeVista::terminarCarga);
}

void ModeloDeVista::terminarCarga(Carga carga) {
  ponerResultado(std::move(carga.resultado), std::move(carga.plegados));
  escribirTerminal(std::move(carga.resolucion));
  refrescando_.escribir(false);
  corregirSeleccion();
  mirarDirectorios();
}

void ModeloDeVista::escribirTerminal(Resolucion resolucion) {
  if (resolucion.turno < turnoEscrito_) return;
  turnoEscrito_ = resolucion.turno;
  if (resolucion.terminal) {
    terminal_.escribir(*std::move(resolucion.terminal));
    errorTerminal_.escribir(std::nullopt);
  } else {
    terminal_.escribir(std::nullopt);
    errorTerminal_.escribir(textos().noSePudoResolverLaTerminal(descripcionDe(resolucion.terminal.error())));
  }
}

void ModeloDeVista::mirarDirectorios() {
  if (con_.directorios == nullptr || mirando_ || resultado_->sesiones.empty()) return;
  mirando_ = true;
  enFondo(
      con_.despachador, vida_,
      [&donde = *con_.directorios, rutas = directoriosDe(resultado_->sesiones)] {
        auto const perdidos = donde.losQueFaltan(rutas);
        return std::set<std::string>{perdidos.begin(), perdidos.end()};
      },
      &ModeloDeVista::terminarMirada);
}

void ModeloDeVista::terminarMirada(std::set<std::string> perdidos) {
  mirando_ = false;
  perdidos_.escribir(std::move(perdidos));
}

void ModeloDeVista::abrirSeleccionada() {
  auto const* sesion = seleccionada();
  if (sesion == nullptr) return;
  PeticionDeApertura peticion{*sesion, con_.servicios, con_.ejecutor, textos(), con_.directorios};
  error_.escribir(std::nullopt);
  aviso_.escribir(std::nullopt);
  consejo_.escribir(std::nullopt);
  enFondo(
      con_.despachador, vida_,
      [peticion = std::move(peticion), turnos = turnos_, &despachador = con_.despachador,
       vida = std::weak_ptr{vida_}] {
        auto const turno = ++*turnos;
        return abrirSesion(peticion, [&](TerminalResuelta const& resuelta) {
          alPrincipal(despachador, vida, &ModeloDeVista::escribirTerminal, Resolucion{turno, resuelta});
        });
      },
      &ModeloDeVista::terminarApertura);
}

void ModeloDeVista::terminarApertura(ResultadoDeApertura resultado) {
  if (resultado.aviso) aviso_.escribir(std::move(resultado.aviso));
  if (resultado.consejo) consejo_.escribir(std::move(resultado.consejo));
  if (resultado.error) error_.escribir(std::move(resultado.error));
}

void ModeloDeVista::copiarIdentificador() {
  auto const* sesion = seleccionada();
  if (sesion == nullptr) return;
  copiar(identificadorDe(*sesion));
}

void ModeloDeVista::copiarComando() {
  auto const* sesion = seleccionada();
  auto const linea = sesion != nullptr ? lineaDeReanudacion(*sesion) : std::nullopt;
  if (linea) copiar(*linea);
}

void ModeloDeVista::copiarDirectorio() {
  auto const* sesion = seleccionada();
  if (sesion != nullptr) copiar(sesion->cwd);
}

void ModeloDeVista::copiar(std::string const& valor) {
  con_.portapapeles.copiar(valor);
  aviso_.escribir(textos().copiado(valor));
  consejo_.escribir(std::nullopt);
}

std::vector<Suscripcion> ModeloDeVista::observar(std::function<void()> const& observador) const {
  return observarTodas(observador, resultado_, consulta_, seleccion_, error_, aviso_, consejo_, refrescando_,
                       terminal_, errorTerminal_, perdidos_);
}

}  // namespace zorve
