#include <unistd.h>
#include <cstdio>
#include <memory>
#include <string>

#include "ZorveApp/Interfaz.h"
#include "ZorvePlatform/Posix/ArchivosPosix.h"
#include "ZorvePlatform/Posix/EjecutorDeProcesos.h"
#include "ZorvePlatform/Posix/Local.h"
#include "ZorvePlatform/Posix/Variable.h"
#include "ZorvePlatform/Posix/VidaDeProcesosPosix.h"
#include "ZorvePlatform/ServiciosDeTerminal.h"
#include "ZorveTui/Circunstancias.h"
#include "ZorveTui/EnPath.h"
#include "ZorveTui/PanelDeConsola.h"
#include "ZorveTui/PortapapelesDeConsola.h"
#include "ZorveTui/Relevar.h"
#include "ZorveTui/SinArranque.h"
#include "ZorveTui/TerminalDeAqui.h"
#include "ZorveTui/TextosDelTerminal.h"
#include "zorvectl/Opciones.h"
#include "zorvectl/Ordenes.h"
#include "zorvectl/Salida.h"

namespace zorve::ctl {

namespace {

constexpr std::string_view atajoDeConsola = "^";
constexpr std::string_view teclaDeCopiar = "Y";

struct Opciones {
  tui::Pedido pedido;
  std::string home;
};

/// What the panel runs with, the real thing behind every seam. Background tasks may outlive the panel, so it
/// is made once and never destroyed.
struct Mundo {
  explicit Mundo(std::string const& de) : home{de}, servicios{serviciosDeTerminal(home)} {
    auto& voces = servicios.apertura.fuentes.voces;
    bool const enUnMac = voces == VocesDelSistema{};
    conEscritorio = tui::hayEscritorio(enUnMac);
    voces.atajo = atajoDeConsola;
    voces.teclaDeCopiar = teclaDeCopiar;
  }

  std::string home;
  bool conEscritorio = false;
  ArchivosPosix archivos;
  VidaDeProcesosPosix procesos;
  ServiciosDeTerminal servicios;
  EjecutorDeProcesos ejecutor;
  tui::DespachadorDeConsola despachador;
  tui::TmuxDeAqui tmux = tui::tmuxDelEntorno(servicios.apertura.rutaPs);
  tui::PortapapelesDeConsola portapapeles{tmux, ejecutor, despachador};
  tui::SinArranque inicio;

  /// Without a desktop the terminal that shows the panel is the one there is.
  void soloEstaTerminal(Idioma idioma) {
    auto const nombre = idioma == Idioma::es ? "esta terminal" : "this terminal";
    auto const voces = servicios.apertura.fuentes.voces;
    servicios.apertura.fuentes = {.conocidas = {std::make_shared<tui::TerminalDeAqui>(nombre)},
                                  .voces = voces};
  }

  [[nodiscard]] Cimientos cimientos() {
    return {.home = home,
            .archivos = archivos,
            .procesos = procesos,
            .servicios = servicios.apertura,
            .preferencias = *servicios.preferencias,
            .ejecutor = ejecutor,
            .portapapeles = portapapeles,
            .inicio = inicio,
            .despachador = despachador,
            .regla = reglaDelEntorno(),
            .principal = Modificador::control};
  }
};

struct Programa {
  Programa(Mundo& mundo, tui::ModoDeApertura modo)
      : interfaz{mundo.cimientos()},
        apertura{{.modo = modo,
                  .tmux = mundo.tmux,
                  .shell = tui::shellDeLaPersona(variable("SHELL")),
                  .ejecutor = mundo.ejecutor,
                  .despachador = mundo.despachador,
                  .idioma = interfaz.idioma}} {}

  Interfaz interfaz;
  tui::AperturaDeConsola apertura;
};

/// Shows the panel; the terminal is given back when this returns.
std::expected<tui::Salida, std::string> mostrar(Mundo& mundo, tui::Pedido const& pedido) {
  if (!mundo.conEscritorio) {
    mundo.soloEstaTerminal(*PreferenciaDeIdioma{*mundo.servicios.preferencias}.idioma());
  }
  auto const modo = tui::modoDe(pedido, mundo.conEscritorio, mundo.tmux.estamosDentro());
  auto& programa = *new Programa{mundo, modo};
  tui::Senales senales;
  auto consola = tui::Consola::abrir();
  if (!consola) return std::unexpected{consola.error()};
  mundo.portapapeles.escribir = [&donde = **consola](std::string_view bytes) { donde.escribir(bytes); };
  tui::PanelDeConsola panel{
      {.panel = programa.interfaz.panel,
       .idioma = programa.interfaz.idioma,
       .apertura = programa.apertura,
       .despachador = mundo.despachador,
       .senales = senales,
       .consola = **consola,
       .senas = tui::senasDelEntorno((*consola)->colores()),
       .modo = modo,
       .filtro = pedido.filtro,
       .copiaIncierta = !mundo.tmux.estamosDentro() && !tui::tomaCopias(variable("TERM"))}};
  return panel.correr();
}

/// Ends the process: tasks that still read go with it.
[[noreturn]] void acabar(int codigo) {
  std::fflush(nullptr);
  ::_exit(codigo);
}

void cumplir(Contexto& contexto, tui::Salida const& salida) {
  if (auto const* relevo = std::get_if<tui::Relevo>(&salida)) {
    terminarCon(contexto, Contexto::fallo, tui::relevar(*relevo));
  } else if (auto const* impresa = std::get_if<tui::Impresa>(&salida)) {
    escribir(contexto, impresa->linea + "\n");
  } else if (auto const* senal = std::get_if<tui::PorSenal>(&salida)) {
    tui::morirPor(senal->senal);
  }
}

void abrirPanel(Contexto& contexto, Opciones const& opciones) {
  auto const home = homeDe(opciones.home);
  if (!home) return terminarCon(contexto, Contexto::fallo, home.error());
  auto const salida = mostrar(*new Mundo{*home}, opciones.pedido);
  if (salida) {
    cumplir(contexto, *salida);
  } else {
    terminarCon(contexto, Contexto::malUso, salida.error());
  }
  acabar(contexto.codigo);
}

constexpr char const* alPieDeLaAyuda =
    R"AYUDA(Keys: arrows or Ctrl+P and Ctrl+N move, Page Up and Page Down by a screen, Ctrl+Home and Ctrl+End to either end;
Return opens, Ctrl+R refreshes, Ctrl+Y copies the identifier, Esc or Ctrl+C leaves, Ctrl+Z suspends. What is typed
searches. Where no desktop is at hand (over SSH, on a console) a finished session runs in this terminal.

As a popup of tmux, on the prefix key and z, a line of ~/.tmux.conf:
  bind-key z display-popup -E -w 80% -h 75% "zorvectl panel --popup"
In a shell:
  eval "$(zorvectl panel --print)")AYUDA";

}  // namespace

void agregarOrdenPanel(CLI::App& app, Contexto& contexto) {
  auto const opciones = std::make_shared<Opciones>();
  auto* const orden = app.add_subcommand("panel", "The panel in this terminal: search, and open with Return");
  auto& pedido = opciones->pedido;
  orden->add_option("--filter", pedido.filtro, "Start with TEXT in the search")->type_name("TEXT");
  auto* const aqui =
      orden->add_flag("--here", pedido.aqui, "Sessions run in this terminal, on a desktop too");
  orden
      ->add_flag("--print", pedido.imprimir,
                 "Return writes the session's shell line to standard output and leaves")
      ->excludes(aqui);
  orden->add_flag(
      "--popup", pedido.emergente,
      "In a popup of tmux: finished sessions open in a window of tmux, running ones are switched to");
  agregarOpcionHome(*orden, opciones->home);
  orden->footer(alPieDeLaAyuda);
  orden->callback([opciones, &contexto] { abrirPanel(contexto, *opciones); });
}

}  // namespace zorve::ctl
