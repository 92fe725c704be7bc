#include "ZorveTui/PanelDeConsola.h"

#include <sys/select.h>

#include <algorithm>
#include <initializer_list>
#include <utility>

#include "ZorveTui/Plano.h"
#include "ZorveTui/Preguntas.h"
#include "ZorveTui/TextosDelTerminal.h"

namespace zorve::tui {

namespace {

using Milisegundos = std::chrono::milliseconds;

/// "5m" grows old.
constexpr Milisegundos entreHoras{15'000};
constexpr Milisegundos paraRespuestas{250};
constexpr std::size_t filasDeRueda = 2;

/// Which of the descriptors can be read; none once the time is over or a signal came.
std::vector<int> legibles(std::initializer_list<int> cuales, Milisegundos plazo) {
  fd_set conjunto;
  FD_ZERO(&conjunto);
  for (int const uno : cuales) FD_SET(uno, &conjunto);
  timeval hasta{.tv_sec = static_cast<time_t>(plazo.count() / 1000),
                .tv_usec = static_cast<suseconds_t>(plazo.count() % 1000 * 1000)};
  // Not poll(2): on macOS it knows no terminals.
  if (::select(std::max(cuales) + 1, &conjunto, nullptr, nullptr, &hasta) <= 0) return {};
  std::vector<int> listos;
  for (int const uno : cuales) {
    if (FD_ISSET(uno, &conjunto)) listos.push_back(uno);
  }
  return listos;
}

std::string_view destinoDe(ModoDeApertura modo, Idioma idioma) {
  switch (modo) {
    case ModoDeApertura::aqui:
      return TextosDelTerminal::aqui(idioma);
    case ModoDeApertura::ventanaDeTmux:
      return TextosDelTerminal::enVentanaDeTmux(idioma);
    case ModoDeApertura::imprimir:
      return TextosDelTerminal::seImprime(idioma);
    default:
      return {};
  }
}

}  // namespace

PanelDeConsola::PanelDeConsola(Con con) : con_{std::move(con)} {
  fondo_ = fondoDelEntorno(con_.senas.colorFgBg);
  con_.panel.acciones = {.esconder = [this] { salida_ = Dejado{}; }, .salir = [this] { salida_ = Dejado{}; }};
  con_.apertura.terminar = [this](Salida salida) { salida_ = std::move(salida); };
  con_.apertura.decir = [this](std::string texto) {
    vista_.avisos = {{LineaDeBanda::Clase::error, std::move(texto)}};
    sucio_ = true;
  };
  con_.apertura.comoElPanel = [this] { tecla(Tecla::retorno); };
  suscripciones_ = con_.panel.observar([this] { sucio_ = seguir_ = true; });
  vista_.busqueda.poner(con_.filtro);
  pintor_.ponerPaleta(paleta());
}

Paleta PanelDeConsola::paleta() const { return {profundidadDe(con_.senas), fondo_}; }

Salida PanelDeConsola::correr() {
  buscar();
  con_.panel.aparecer();
  preguntar();
  while (!salida_) {
    if (sucio_) pintar();
    esperar();
  }
  esperarRespuestas();
  return *std::move(salida_);
}

void PanelDeConsola::preguntar() {
  if (!con_.consola.sePuedePreguntar()) return;
  faltanRespuestas_ = con_.consola.escribir(preguntas);
}

void PanelDeConsola::esperar() {
  auto const plazo = std::min(con_.despachador.hastaLaProxima().value_or(entreHoras), entreHoras);
  auto const listos =
      legibles({con_.consola.descriptor(), con_.senales.descriptor(), con_.despachador.descriptor()}, plazo);
  if (listos.empty()) sucio_ = true;
  atenderSenales();
  if (std::ranges::count(listos, con_.consola.descriptor()) > 0) atenderTeclado();
  con_.despachador.correrPendientes();
}

void PanelDeConsola::atenderSenales() {
  for (int const senal : con_.senales.llegadas()) {
    if (senal == SIGWINCH) {
      sucio_ = seguir_ = true;
    } else if (senal == SIGTSTP) {
      suspender();
    } else if (senal == SIGCONT) {
      con_.consola.suspender();
      con_.consola.reanudar();
      pintor_.olvidar();
      sucio_ = true;
    } else {
      salida_ = PorSenal{senal};
    }
  }
}

void PanelDeConsola::atenderTeclado() {
  auto const golpes = con_.consola.leer();
  if (golpes.empty() && !con_.consola.sigueAhi()) salida_ = PorSenal{SIGHUP};
  for (auto const& suceso : descifrador_.descifrar(golpes)) atender(suceso);
}

void PanelDeConsola::atender(Suceso const& suceso) {
  if (salida_) return;
  if (auto const* orden = std::get_if<Orden>(&suceso)) return obedecer(*orden);
  if (auto const* raton = std::get_if<Raton>(&suceso)) return gesto(*raton);
  if (auto const* escrito = std::get_if<Escrito>(&suceso)) {
    vista_.busqueda.escribir(escrito->texto);
    return buscar();
  }
  if (auto const* respuesta = std::get_if<RespuestaDeFondo>(&suceso)) {
    fondo_ = respuesta->fondo;
    pintor_.ponerPaleta(paleta());
    sucio_ = true;
  } else if (std::holds_alternative<TieneSincronia>(suceso)) {
    pintor_.ponerSincronia(true);
  } else {
    faltanRespuestas_ = false;
  }
}

void PanelDeConsola::obedecer(Orden orden) {
  seguir_ = sucio_ = true;
  switch (orden) {
    case Orden::subir:
      return tecla(Tecla::arriba);
    case Orden::bajar:
      return tecla(Tecla::abajo);
    case Orden::paginaArriba:
      return pagina(-1);
    case Orden::paginaAbajo:
      return pagina(1);
    case Orden::primera:
      return con_.panel.elegirFila(0);
    case Orden::ultima:
      return con_.panel.elegirFila(std::max<std::size_t>(con_.panel.cantidadDeFilas(), 1) - 1);
    case Orden::abrir:
      return abrir();
    case Orden::refrescar:
      return atajo(U'r');
    case Orden::copiar:
      return copiar();
    case Orden::dejar:
      return tecla(Tecla::escape);
    case Orden::suspender:
      return suspender();
    case Orden::redibujar:
      return pintor_.olvidar();
    default:
      return editar(orden);
  }
}

void PanelDeConsola::editar(Orden orden) {
  auto& busqueda = vista_.busqueda;
  switch (orden) {
    case Orden::izquierda:
      return busqueda.izquierda();
    case Orden::derecha:
      return busqueda.derecha();
    case Orden::inicio:
      return busqueda.alPrincipio();
    case Orden::fin:
      return busqueda.alFinal();
    case Orden::borrarAtras:
      busqueda.borrarAtras();
      break;
    case Orden::borrarAdelante:
      busqueda.borrarAdelante();
      break;
    case Orden::borrarPalabra:
      busqueda.borrarPalabra();
      break;
    default:
      busqueda.borrarTodo();
  }
  buscar();
}

void PanelDeConsola::tecla(Tecla cual) { con_.panel.tecla({.tecla = cual}); }

void PanelDeConsola::atajo(char32_t letra) {
  con_.panel.tecla({.tecla = Tecla::caracter, .caracter = letra, .modificadores = Modificador::control});
}

void PanelDeConsola::pagina(int sentido) {
  auto const filas = filasALaVista(con_.panel, vista_, con_.consola.tamano());
  con_.panel.mover(sentido * static_cast<int>(filas));
}

void PanelDeConsola::abrir() {
  vista_.avisos.clear();
  if (auto const* sesion = con_.panel.sesionSeleccionada()) con_.apertura.abrir(Session{*sesion});
}

void PanelDeConsola::copiar() {
  vista_.avisos.clear();
  if (con_.panel.sesionSeleccionada() == nullptr) return;
  atajo(U'c');
  if (!con_.copiaIncierta) return;
  vista_.avisos = {
      {LineaDeBanda::Clase::aviso, std::string{TextosDelTerminal::quizaNoSeCopio(*con_.idioma.idioma())}}};
}

void PanelDeConsola::suspender() {
  con_.consola.suspender();
  con_.senales.detenerse();
  con_.consola.reanudar();
  pintor_.olvidar();
  sucio_ = true;
}

void PanelDeConsola::gesto(Raton const& raton) {
  sucio_ = true;
  if (raton.gesto == Raton::Gesto::clic) {
    if (raton.fila >= cuadro_.filaEnLinea.size() || !cuadro_.filaEnLinea[raton.fila]) return;
    con_.panel.elegirFila(*cuadro_.filaEnLinea[raton.fila]);
    return abrir();
  }
  seguir_ = false;
  bool const arriba = raton.gesto == Raton::Gesto::ruedaArriba;
  vista_.primera =
      arriba ? vista_.primera - std::min(vista_.primera, filasDeRueda) : vista_.primera + filasDeRueda;
}

void PanelDeConsola::buscar() {
  if (con_.panel.consulta() == vista_.busqueda.texto()) return;
  con_.panel.escribirConsulta(vista_.busqueda.texto());
}

void PanelDeConsola::pintar() {
  auto const tamano = con_.consola.tamano();
  vista_.idioma = *con_.idioma.idioma();
  vista_.destino = destinoDe(con_.modo, vista_.idioma);
  vista_.primera = primeraALaVista(vista_.primera, seguir_ ? con_.panel.filaSeleccionada() : std::nullopt,
                                   con_.panel.cantidadDeFilas(), filasALaVista(con_.panel, vista_, tamano));
  cuadro_ = dibujar(con_.panel, vista_, tamano);
  sucio_ = false;
  if (!con_.consola.escribir(pintor_.pintar(cuadro_))) salida_ = PorSenal{SIGHUP};
}

/// Answers that come after the panel is left would be typed into the shell.
void PanelDeConsola::esperarRespuestas() {
  auto const limite = std::chrono::steady_clock::now() + paraRespuestas;
  while (faltanRespuestas_ && con_.consola.sigueAhi()) {
    auto const falta = std::chrono::ceil<Milisegundos>(limite - std::chrono::steady_clock::now());
    if (falta.count() <= 0 || legibles({con_.consola.descriptor()}, falta).empty()) return;
    for (auto const& suceso : descifrador_.descifrar(con_.consola.leer())) {
      if (std::holds_alternative<FinDeRespuestas>(suceso)) faltanRespuestas_ = false;
    }
  }
}

}  // namespace zorve::tui
