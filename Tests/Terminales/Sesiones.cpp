#include "Terminales/Sesiones.h"

#include <algorithm>
#include <iterator>
#include <ranges>

#include "ZorveTerminal/ProcesosDelTty.h"

namespace zorve::pruebas {

std::vector<FichaDeTerminal> enfocables(SesionGrafica sesion) {
  std::vector<FichaDeTerminal> todas;
  std::ranges::copy_if(fichasDeLinux(), std::back_inserter(todas), [sesion](auto const& ficha) {
    return std::ranges::find(ficha.enfocableEn, sesion) != ficha.enfocableEn.end();
  });
  return todas;
}

bool Sesiones::abrirVentana() {
  auto const antes = ventanasDeX().size();
  auto const corrida =
      escritorio.ayudante({"open", ficha_.identificador, escritorio.casa().ruta(), "claude"});
  EXPECT_EQ(corrida.codigo, 0) << corrida.error;
  // A shell may run before its window is shown, which then takes the keyboard.
  return esperarOtra() && (!enX() || esperarA([&] { return ventanasDeX().size() > antes; }));
}

bool Sesiones::enX() const { return escritorio.variables.contains("DISPLAY"); }

std::vector<std::string> Sesiones::ventanasDeX() const {
  std::vector<std::string> ventanas;
  if (!enX()) return ventanas;
  auto const lista = escritorio.correr({"xprop", "-root", "_NET_CLIENT_LIST"}).salida;
  for (auto i = lista.find("0x"); i != std::string::npos; i = lista.find("0x", i + 1)) {
    ventanas.push_back(lista.substr(i, lista.find_first_of(",\n", i) - i));
  }
  return ventanas;
}

bool Sesiones::esperarOtra() {
  for (auto const& anotado : escritorio.anotados(sesiones.size() + 1)) {
    if (std::ranges::find(sesiones, anotado.pid, &Anotado::pid) != sesiones.end()) continue;
    sesiones.push_back(anotado);
    return true;
  }
  ADD_FAILURE() << "no session appeared";
  return false;
}

dobles::Corrida Sesiones::enfocar(std::size_t cual) const {
  return escritorio.ayudante({"focus", ficha_.identificador, sesiones.at(cual).tty});
}

std::string Sesiones::teclasDe(std::size_t cual) const {
  return leerArchivoDePrueba(escritorio.casa().dentro("teclas/" + std::to_string(sesiones.at(cual).pid)));
}

void Sesiones::laTeclaLlegaSoloA(std::size_t cual, std::string const& tecla) const {
  auto const corrida = enfocar(cual);
  ASSERT_EQ(corrida.codigo, 0) << "session " << cual << " for " << tecla << ": " << corrida.error;
  EXPECT_EQ(corrida.salida + corrida.error, "");
  std::vector<std::string> antes;
  for (std::size_t i = 0; i < sesiones.size(); ++i) antes.push_back(teclasDe(i));
  ASSERT_TRUE(hacer({"xdotool", "key", tecla, "Return"}));
  EXPECT_TRUE(
      esperarA([&] { return teclasDe(cual) == antes[cual] + tecla + "\n"; }, std::chrono::seconds{10}))
      << "session " << cual << " has " << teclasDe(cual);
  for (std::size_t i = 0; i < sesiones.size(); ++i) {
    if (i == cual) continue;
    EXPECT_EQ(teclasDe(i), antes[i]) << "session " << i << " instead of " << cual;
  }
}

pid_t Sesiones::anfitrionDe(std::size_t cual) const {
  auto const lider = liderDelTty(sesiones.at(cual).tty);
  return lider ? lider->padre : 0;
}

std::string Sesiones::variableDe(std::size_t cual, std::string const& nombre) const {
  auto const lider = liderDelTty(sesiones.at(cual).tty);
  return lider ? variableDelProceso(lider->pid, nombre) : std::string{};
}

bool Sesiones::hacer(std::vector<std::string> const& palabras) const {
  auto const corrida = escritorio.correr(palabras);
  EXPECT_EQ(corrida.codigo, 0) << palabras.front() << ": " << corrida.error;
  return corrida.codigo == 0;
}

}  // namespace zorve::pruebas
