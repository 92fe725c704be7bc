#include "ZorveCore/CatalogoDeTerminales.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <memory>

#include <utf8proc.h>

#include "ZorveCore/TerminalApple.h"
#include "ZorveCore/TerminalGhostty.h"
#include "ZorveCore/TerminalITerm.h"

namespace zorve {

namespace {

constexpr char const* rutaOsascript = "/usr/bin/osascript";

/// Case folded; bytes that are no UTF-8 stay as they are.
std::string sinMayusculas(std::string_view texto) {
  utf8proc_uint8_t* plegado = nullptr;
  auto const largo = utf8proc_map(reinterpret_cast<utf8proc_uint8_t const*>(texto.data()),
                                  static_cast<utf8proc_ssize_t>(texto.size()), &plegado,
                                  static_cast<utf8proc_option_t>(UTF8PROC_CASEFOLD | UTF8PROC_COMPOSE));
  std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> const dueno{plegado, &std::free};
  if (largo < 0) return std::string{texto};
  return {reinterpret_cast<char const*>(plegado), static_cast<std::size_t>(largo)};
}

std::string nombresDe(std::vector<TerminalRef> const& terminales) {
  std::string nombres;
  for (auto const& terminal : terminales) {
    if (!nombres.empty()) nombres += ", ";
    nombres += terminal->nombre();
  }
  return nombres;
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

std::unexpected<IndexError> variasInstaladas(std::vector<TerminalRef> const& instaladas) {
  return fallo("Several terminals are installed (" + nombresDe(instaladas) +
               ") and the system has none registered as the handler for shell scripts. Pick one: defaults "
               "write com.sarnol.zorve " +
               std::string{CatalogoDeTerminales::clavePreferencia} + " -string " +
               instaladas.front()->identificador());
}

}  // namespace

bool TerminalResuelta::operator==(TerminalResuelta const& otra) const {
  auto const identificadorDe = [](TerminalRef const& ref) {
    return ref ? std::optional{ref->identificador()} : std::nullopt;
  };
  return origen == otra.origen && identificadorDe(terminal) == identificadorDe(otra.terminal);
}

TerminalRef buscarTerminal(std::string_view identificador, std::vector<TerminalRef> const& terminales) {
  auto const buscado = sinMayusculas(identificador);
  auto const hallada = std::ranges::find_if(terminales, [&](TerminalRef const& terminal) {
    return sinMayusculas(terminal->identificador()) == buscado;
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
  return variasInstaladas(presentes);
}

std::optional<std::string> manejadorRegistrado(ManejadorDelSistema const& manejador) {
  return manejador.aplicacionPara(CatalogoDeTerminales::tipoDeGuionDeShell);
}

std::optional<std::string> eleccionGuardada(Preferencias const& preferencias) {
  return textoGuardado(preferencias, std::string{CatalogoDeTerminales::clavePreferencia});
}

std::expected<void, IndexError> elegir(Preferencias& preferencias,
                                       std::optional<std::string> const& identificador) {
  std::string const clave{CatalogoDeTerminales::clavePreferencia};
  return identificador ? preferencias.escribir(clave, *identificador) : preferencias.quitar(clave);
}

CatalogoDeTerminales catalogoDelSistema(std::vector<TerminalRef> conocidas,
                                        ManejadorDelSistema const& manejador,
                                        Preferencias const& preferencias) {
  return {.conocidas = std::move(conocidas),
          .manejadorDelSistema = [&manejador] { return manejadorRegistrado(manejador); },
          .leerEleccion = [&preferencias] { return eleccionGuardada(preferencias); },
          .mirarElManejador = [&manejador] { manejador.mirar(); }};
}

std::vector<TerminalRef> todas(AplicacionesInstaladas const& aplicaciones) {
  return {std::make_shared<TerminalITerm const>(rutaOsascript, aplicaciones),
          std::make_shared<TerminalGhostty const>(rutaOsascript, aplicaciones),
          std::make_shared<TerminalApple const>(rutaOsascript, aplicaciones)};
}

}  // namespace zorve
