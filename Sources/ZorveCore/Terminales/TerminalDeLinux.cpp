#include "ZorveCore/Terminales/TerminalDeLinux.h"

#include <algorithm>
#include <utility>

#include "ZorveCore/Lectura/Archivos.h"
#include "ZorveCore/Texto/Escape.h"

namespace zorve {

TerminalDeLinux::TerminalDeLinux(FichaDeTerminal const& ficha, AplicacionesInstaladas const& aplicaciones,
                                 std::string rutaDelAyudante, SesionDeAhora sesion)
    : ficha_{ficha},
      aplicaciones_{aplicaciones},
      rutaDelAyudante_{std::move(rutaDelAyudante)},
      sesion_{std::move(sesion)} {}

std::string TerminalDeLinux::identificador() const { return ficha_.identificador; }

std::string TerminalDeLinux::nombre() const { return ficha_.nombre; }

std::string TerminalDeLinux::nombreDelBundle() const { return ficha_.entradaDeEscritorio; }

bool TerminalDeLinux::puedeEnfocar() const { return seEnfocaEn(ficha_, sesion_()); }

bool TerminalDeLinux::estaInstalada() const { return zorve::estaInstalada(ficha_, aplicaciones_); }

bool TerminalDeLinux::hospeda(std::string_view command) const {
  return esProcesoDe(ficha_, nombreBase(command));
}

PlanDeApertura TerminalDeLinux::planParaAbrir(std::string const& cwd, std::string const& comando) const {
  return std::vector{ComandoDeApertura{rutaDelAyudante_, {"open", ficha_.identificador, cwd, comando}}};
}

std::expected<PlanDeApertura, IndexError> TerminalDeLinux::planParaEnfocar(std::string const& tty) const {
  if (!puedeEnfocar()) return NoSePuedeEnfocar{ttyCorto(tty)};
  return std::vector{ComandoDeApertura{rutaDelAyudante_, {"focus", ficha_.identificador, ttyCorto(tty)}}};
}

std::vector<TerminalRef> terminalesDeLinux(AplicacionesInstaladas const& aplicaciones,
                                           std::string const& rutaDelAyudante, SesionDeAhora const& sesion) {
  std::vector<TerminalRef> terminales;
  for (auto const& ficha : fichasDeLinux()) {
    terminales.push_back(std::make_shared<TerminalDeLinux>(ficha, aplicaciones, rutaDelAyudante, sesion));
  }
  return terminales;
}

std::vector<TerminalRef> terminalesDeLinux(AplicacionesInstaladas const& aplicaciones,
                                           std::string const& rutaDelAyudante, SesionGrafica sesion) {
  return terminalesDeLinux(aplicaciones, rutaDelAyudante, SesionDeAhora{[sesion] { return sesion; }});
}

bool estaInstalada(FichaDeTerminal const& ficha, AplicacionesInstaladas const& aplicaciones) {
  auto const hay = [&](std::string const& nombre) { return aplicaciones.hay(nombre); };
  auto const& entrada = ficha.entradaDeEscritorio;
  return std::ranges::any_of(ficha.programas, hay) || hay(entrada.substr(0, entrada.rfind('.')));
}

bool seEnfocaEn(FichaDeTerminal const& ficha, SesionGrafica sesion) {
  return std::ranges::find(ficha.enfocableEn, sesion) != ficha.enfocableEn.end();
}

bool esProcesoDe(FichaDeTerminal const& ficha, std::string_view nombre) {
  return std::ranges::find(ficha.procesos, nombre) != ficha.procesos.end();
}

}  // namespace zorve
