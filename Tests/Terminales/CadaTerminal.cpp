#include "Terminales/CadaTerminal.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <sstream>

namespace zorve::pruebas {

namespace {

/// A terminal of Debian without a row in the table.
constexpr char const* terminalDesconocida = "urxvt";

}  // namespace

Proceso procesoDe(pid_t pid) {
  auto const linea = leerArchivoDePrueba("/proc/" + std::to_string(pid) + "/stat");
  Proceso proceso;
  if (auto const fin = linea.rfind(')'); fin != std::string::npos) {
    std::istringstream{linea.substr(fin + 1)} >> proceso.estado >> proceso.padre;
  }
  return proceso;
}

bool estaAqui(FichaDeTerminal const& ficha) {
  return programaInstalado(ficha.esCualquierOtra ? terminalDesconocida : ficha.programas.front()).has_value();
}

std::string noEstaAqui(FichaDeTerminal const& ficha) { return ficha.nombre + " is not installed here"; }

EscritorioDe::EscritorioDe(FichaDeTerminal const& ficha, std::string const& gestorDeVentanas)
    : EscritorioDe{ficha, ficha.identificador == "foot" ? Pantalla::wayland : Pantalla::x11,
                   gestorDeVentanas} {}

EscritorioDe::EscritorioDe(FichaDeTerminal const& ficha, Pantalla pantalla,
                           std::string const& gestorDeVentanas)
    : Escritorio{pantalla, gestorDeVentanas} {
  if (!ficha.esCualquierOtra) return;
  auto const enlace = home().carpeta("enlaces") + "/" + ficha.programas.front();
  std::filesystem::create_symlink(programaInstalado(terminalDesconocida).value(), enlace);
  if (pantalla == Pantalla::ninguna) variables["DISPLAY"] = ":65000";  // without a word urxvt tries ":0"
  variables["PATH"] = home().dentro("enlaces") + ":" + variables["PATH"];
}

std::string nombreDelTerminal(testing::TestParamInfo<FichaDeTerminal> const& caso) {
  std::string nombre;
  std::ranges::copy_if(caso.param.identificador, std::back_inserter(nombre),
                       [](char letra) { return letra != '.' && letra != '-'; });
  return nombre;
}

}  // namespace zorve::pruebas
