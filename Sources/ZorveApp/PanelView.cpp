#include "ZorveApp/PanelView.h"

#include <utility>

#include "ZorveApp/DirectorioPerdido.h"
#include "ZorveCore/Texto/Presentacion.h"

namespace zorve {

namespace {

std::optional<std::string> palabraDe(LiveState estado, Textos const& textos) {
  switch (estado) {
    case LiveState::idle:
      return std::string{textos.activa};
    case LiveState::busy:
      return std::string{textos.procesando};
    default:
      return std::nullopt;
  }
}

std::optional<std::string> conteoDe(Session const& sesion, Textos const& textos) {
  if (!sesion.conteoPrompts) return std::nullopt;
  return std::to_string(*sesion.conteoPrompts) + " " + std::string{textos.prompts};
}

std::optional<std::string> ayudaDe(Session const& sesion, Textos const& textos) {
  if (sesion.tituloOrigen != TitleSource::derivedFromFirstPrompt) return std::nullopt;
  return std::string{textos.tituloDerivado};
}

std::optional<std::string> perdidaDe(Session const& sesion, std::set<std::string> const& perdidos,
                                     Idioma idioma) {
  if (!perdidos.contains(sesion.cwd)) return std::nullopt;
  return std::string{TextosDelDirectorio::ayuda(idioma)};
}

}  // namespace

std::string Fila::lineaDeRuta() const { return palabraDeEstado ? ruta + " · " + *palabraDeEstado : ruta; }

PanelView::PanelView(ModeloDeVista& modelo, EstadoDelPanel const& estado, PreferenciaDeIdioma const& idioma,
                     std::string home, std::function<Fecha()> reloj, Modificador principal)
    : modelo_{modelo},
      estado_{estado},
      idioma_{idioma},
      home_{std::move(home)},
      reloj_{std::move(reloj)},
      principal_{principal} {}

std::vector<Suscripcion> PanelView::observar(std::function<void()> const& observador) const {
  auto todas = modelo_.observar(observador);
  todas.push_back(idioma_.idioma().observar(observador));
  return todas;
}

void PanelView::aparecer() { modelo_.refrescar(); }

void PanelView::escribirConsulta(std::string texto) { modelo_.escribirConsulta(std::move(texto)); }

std::optional<std::string_view> PanelView::marcador() const {
  if (cantidadDeFilas() > 0) return std::nullopt;
  if (!modelo_.resultado()->sesiones.empty()) return textos().sinCoincidencias;
  return *modelo_.refrescando() ? textos().buscandoSesiones : textos().sinSesiones;
}

std::size_t PanelView::cantidadDeFilas() const { return modelo_.visibles().size(); }

Session const& PanelView::sesion(std::size_t posicion) const {
  return modelo_.resultado()->sesiones[modelo_.visibles()[posicion]];
}

std::string PanelView::idDeFila(std::size_t posicion) const { return sesion(posicion).id(); }

Fila PanelView::fila(std::size_t posicion) const {
  auto const& de = sesion(posicion);
  auto const t = textos();
  auto id = de.id();
  bool const seleccionada = id == *modelo_.seleccion();
  return {.id = std::move(id),
          .titulo = de.titulo,
          .ayuda = ayudaDe(de, t),
          .ruta = abreviar(de.cwd, home_),
          .palabraDeEstado = palabraDe(de.liveState, t),
          .tiempo = relativo(de.ultimaActividad, reloj_(), t.ahora),
          .conteo = conteoDe(de, t),
          .estado = de.liveState,
          .seleccionada = seleccionada,
          .marcasDeTitulo = tramosDe(de.titulo, modelo_.fichas(), modelo_.regla()),
          .marcasDeRuta = enLoAbreviado(tramosDe(de.cwd, modelo_.fichas(), modelo_.regla()), de.cwd, home_),
          .directorioPerdido = perdidaDe(de, *modelo_.directoriosPerdidos(), t.idioma)};
}

std::string PanelView::trozoDelPrompt(std::size_t posicion) const {
  auto const& de = sesion(posicion);
  if (!de.ultimoPrompt || modelo_.fichas().empty()) return {};
  return trozoQueCoincide(de.titulo, de.cwd, *de.ultimoPrompt, modelo_.fichas(), modelo_.regla());
}

std::optional<std::size_t> PanelView::filaSeleccionada() const { return modelo_.posicionSeleccionada(); }

Session const* PanelView::sesionSeleccionada() const { return modelo_.seleccionada(); }

std::vector<LineaDeBanda> PanelView::banda() const {
  std::vector<LineaDeBanda> lineas;
  for (auto& mensaje : modelo_.mensajesDeError()) {
    lineas.push_back({LineaDeBanda::Clase::error, std::move(mensaje)});
  }
  if (*modelo_.avisoDeApertura()) {
    lineas.push_back({LineaDeBanda::Clase::aviso, **modelo_.avisoDeApertura()});
  }
  if (*modelo_.consejo()) lineas.push_back({LineaDeBanda::Clase::aviso, **modelo_.consejo()});
  return lineas;
}

std::array<EntradaDeLeyenda, 3> PanelView::leyenda() const {
  using enum EntradaDeLeyenda::Simbolo;
  auto const t = textos();
  return {{{flechas, "↑↓", t.atajoMover},
           {retorno, "↩", t.atajoAbrir},
           {refrescar, t.atajo("R"), t.atajoRefrescar}}};
}

std::string PanelView::terminal() const { return modelo_.terminalParaElPie(); }
std::string PanelView::ayudaAjustes() const { return textos().ayudaAjustes; }
std::string_view PanelView::nombreAjustes() const { return textos().ajustes; }

bool PanelView::tecla(Pulsacion const& pulsacion) {
  auto const accion = accionDelPanel(pulsacion, principal_);
  if (accion) hacer(*accion);
  return accion.has_value();
}

void PanelView::hacer(AccionDelPanel accion) {
  switch (accion) {
    case AccionDelPanel::subir:
      return modelo_.mover(-1);
    case AccionDelPanel::bajar:
      return modelo_.mover(1);
    case AccionDelPanel::abrir:
      return modelo_.abrirSeleccionada();
    case AccionDelPanel::esconder:
      return acciones.esconder();
    case AccionDelPanel::refrescar:
      return modelo_.refrescar();
    case AccionDelPanel::copiar:
      return modelo_.copiarIdentificador();
    case AccionDelPanel::salir:
      return acciones.salir();
    case AccionDelPanel::ajustes:
      return estado_.abrirLaVentanaDeAjustes();
    case AccionDelPanel::nada:
      return;
  }
}

void PanelView::clicEnFila(std::size_t posicion) {
  if (posicion >= cantidadDeFilas()) return;
  elegirFila(posicion);
  modelo_.abrirSeleccionada();
}

std::vector<EntradaDelMenuDeFila> PanelView::abrirMenuDeFila(std::size_t posicion) {
  if (posicion >= cantidadDeFilas()) return {};
  modelo_.seleccionar(idDeFila(posicion));
  return menuDeFila(sesion(posicion), static_cast<bool>(acciones.mostrarDirectorio), textos().idioma);
}

void PanelView::elegirEnElMenu(std::string_view id, EntradaDelMenuDeFila::Clase cual) {
  using Clase = EntradaDelMenuDeFila::Clase;
  modelo_.seleccionar(id);
  auto const* elegida = modelo_.seleccionada();
  if (elegida == nullptr || elegida->id() != id) return;
  switch (cual) {
    case Clase::abrir:
      return modelo_.abrirSeleccionada();
    case Clase::copiarIdentificador:
      return modelo_.copiarIdentificador();
    case Clase::copiarComando:
      return modelo_.copiarComando();
    case Clase::copiarDirectorio:
      return modelo_.copiarDirectorio();
    case Clase::mostrarDirectorio:
      if (acciones.mostrarDirectorio) acciones.mostrarDirectorio(elegida->cwd);
  }
}

void PanelView::elegirFila(std::size_t posicion) {
  if (posicion < cantidadDeFilas()) modelo_.seleccionar(idDeFila(posicion));
}

void PanelView::mover(int filas) { modelo_.mover(filas); }

void PanelView::clicEnAjustes() { estado_.abrirLaVentanaDeAjustes(); }

}  // namespace zorve
