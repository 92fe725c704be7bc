#include "Terminales/CadaTerminal.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string_view>

namespace zorve::pruebas {

Proceso procesoDe(pid_t pid) {
  auto const linea = leerArchivoDePrueba("/proc/" + std::to_string(pid) + "/stat");
  Proceso proceso;
  if (auto const fin = linea.rfind(')'); fin != std::string::npos) {
    std::istringstream{linea.substr(fin + 1)} >> proceso.estado >> proceso.padre;
  }
  return proceso;
}

bool conLosLargos() {
  char const* const valor = std::getenv("ZORVE_TODO");
  return valor != nullptr && std::string_view{valor} == "si";
}

bool estaAqui(FichaDeTerminal const& ficha) {
  if (programaInstalado(ficha.programas.front())) return true;
  std::cout << "skipped: " << ficha.nombre << " is not installed here\n";
  return false;
}

Escritorio::Pantalla pantallaDe(FichaDeTerminal const& ficha) {
  return ficha.identificador == "foot" ? Escritorio::Pantalla::wayland : Escritorio::Pantalla::x11;
}

std::string nombreDelTerminal(testing::TestParamInfo<FichaDeTerminal> const& caso) {
  std::string nombre;
  std::ranges::copy_if(caso.param.identificador, std::back_inserter(nombre),
                       [](char letra) { return letra != '.' && letra != '-'; });
  return nombre;
}

}  // namespace zorve::pruebas
