#include "ZorveCore/Terminales/CatalogoDeTerminales.h"

#include <algorithm>
#include <iterator>

#include "ZorveCore/Texto/TextoPlegado.h"
#include "ZorveCore/Texto/Unir.h"

namespace zorve {

namespace {

static_assert(VocesDelSistema{}.ordenDeEleccion.contains(CatalogoDeTerminales::clavePreferencia));

std::string nombresDe(std::vector<TerminalRef> const& terminales) {
  std::vector<std::string> nombres;
  nombres.reserve(terminales.size());
  for (auto const& terminal : terminales) nombres.push_back(terminal->nombre());
  return unidos(nombres, ", ");
}

std::unexpected<IndexError> fallo(std::string mensaje) {
  return std::unexpected{IndexError{IndexSource::launcher, std::move(mensaje)}};
}

std::unexpected<IndexError> ningunaConocida(std::vector<TerminalRef> const& conocidas) {
  return fallo("Zorve found no known terminal installed (it looks for " + nombresDe(conocidas) +
               "). Without a terminal there is nowhere to open the session.");
}

std::unexpected<IndexError> eleccionAusente(std::string const& eleccion,
                                            std::vector<TerminalRef> const& instaladas) {
  return fallo("The chosen terminal (" + eleccion +
               ") is no longer installed. Installed now: " + nombresDe(instaladas) + ".");
}

std::unexpected<IndexError> variasInstaladas(std::vector<TerminalRef> const& instaladas,
                                             VocesDelSistema const& voces) {
  return fallo("Several terminals are installed (" + nombresDe(instaladas) +
               ") and the system has none registered as the handler for shell scripts. Pick one: " +
               std::string{voces.ordenDeEleccion} + instaladas.front()->identificador());
}

}  // namespace

bool TerminalResuelta::operator==(TerminalResuelta const& otra) const {
  auto const identificadorDe = [](TerminalRef const& ref) {
    return ref ? std::optional{ref->identificador()} : std::nullopt;
  };
  return origen == otra.origen && identificadorDe(terminal) == identificadorDe(otra.terminal);
}

TerminalRef buscarTerminal(std::string_view identificador, std::vector<TerminalRef> const& terminales) {
  auto const hallada = std::ranges::find_if(terminales, [&](TerminalRef const& terminal) {
    return igualesSinMayusculas(terminal->identificador(), identificador);
  });
  return hallada == terminales.end() ? nullptr : *hallada;
}

std::vector<TerminalRef> CatalogoDeTerminales::instaladas() const {
  std::vector<TerminalRef> resultado;
  std::ranges::copy_if(conocidas, std::back_inserter(resultado),
                       [](TerminalRef const& terminal) { return terminal->estaInstalada(); });
  return resultado;
}

std::expected<TerminalResuelta, IndexError> CatalogoDeTerminales::resolver() const {
  auto const presentes = instaladas();
  if (presentes.empty()) return ningunaConocida(conocidas);
  if (auto const eleccion = leerEleccion(); eleccion && !eleccion->empty()) {
    if (auto elegida = buscarTerminal(*eleccion, presentes)) {
      return TerminalResuelta{std::move(elegida), OrigenDeLaTerminal::eleccionDeLaPersona};
    }
    return eleccionAusente(*eleccion, presentes);
  }
  if (auto const identificador = manejadorDelSistema()) {
    if (auto manejador = buscarTerminal(*identificador, presentes)) {
      return TerminalResuelta{std::move(manejador), OrigenDeLaTerminal::manejadorDelSistema};
    }
  }
  if (presentes.size() == 1) return TerminalResuelta{presentes.front(), OrigenDeLaTerminal::unicaInstalada};
  return variasInstaladas(presentes, voces);
}

std::optional<std::string> manejadorRegistrado(ManejadorDelSistema const& manejador) {
  return manejador.preguntar(CatalogoDeTerminales::tipoDeGuionDeShell).aplicacion;
}

std::expected<std::optional<std::string>, IndexError> leerLaEleccion(Preferencias const& preferencias) {
  return leerTexto(preferencias, std::string{CatalogoDeTerminales::clavePreferencia});
}

std::optional<std::string> eleccionGuardada(Preferencias const& preferencias) {
  return leerLaEleccion(preferencias).value_or(std::nullopt);
}

std::expected<void, IndexError> elegir(Preferencias& preferencias,
                                       std::optional<std::string> const& identificador) {
  std::string const clave{CatalogoDeTerminales::clavePreferencia};
  return identificador ? preferencias.escribir(clave, *identificador) : preferencias.quitar(clave);
}

}  // namespace zorve
