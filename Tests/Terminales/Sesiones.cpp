#include "Terminales/Sesiones.h"

#include <algorithm>
#include <iterator>
#include <ranges>

#include "Terminales/Teclado.h"
#include "ZorveTerminal/SesionEnTty.h"
#include "ZorveTerminal/Sway.h"

namespace zorve::pruebas {

namespace {

constexpr int vecesQueSeTeclea = 5;

}  // namespace

std::vector<FichaDeTerminal> enfocables(SesionGrafica sesion) {
  std::vector<FichaDeTerminal> todas;
  std::ranges::copy_if(fichasDeLinux(), std::back_inserter(todas), [sesion](auto const& ficha) {
    return std::ranges::find(ficha.enfocableEn, sesion) != ficha.enfocableEn.end();
  });
  return todas;
}

bool Sesiones::abrirVentana(std::string const& orden) {
  auto const antes = ventanas().size();
  auto const corrida = escritorio.ayudante({"open", ficha_.identificador, escritorio.home().ruta(), orden});
  EXPECT_EQ(corrida.codigo, 0) << corrida.error;
  // A shell may run before its window is shown, which then takes the keyboard.
  if (!esperarOtra()) return false;
  bool const seVe = !sabeLasVentanas() || esperarA([&] { return ventanas().size() > antes; });
  EXPECT_TRUE(seVe) << "no window appeared";
  return seVe;
}

bool Sesiones::sabeLasVentanas() const {
  return escritorio.variables.contains("SWAYSOCK") || escritorio.variables.contains("DISPLAY");
}

std::vector<std::string> Sesiones::ventanas() const {
  std::vector<std::string> todas;
  if (escritorio.variables.contains("SWAYSOCK")) {
    for (auto const& una :
         ayudante::ventanasDelArbol(escritorio.correr({"swaymsg", "-r", "-t", "get_tree"}).salida)) {
      todas.push_back(std::to_string(una.id));
    }
    return todas;
  }
  if (!sabeLasVentanas()) return todas;
  auto const lista = escritorio.correr({"xprop", "-root", "_NET_CLIENT_LIST"}).salida;
  for (auto i = lista.find("0x"); i != std::string::npos; i = lista.find("0x", i + 1)) {
    todas.push_back(lista.substr(i, lista.find_first_of(",\n", i) - i));
  }
  return todas;
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
  return leerArchivoDePrueba(escritorio.home().dentro("teclas/" + std::to_string(sesiones.at(cual).pid)));
}

void Sesiones::laTeclaLlegaSoloA(std::size_t cual, std::string const& tecla) const {
  auto const corrida = enfocar(cual);
  ASSERT_EQ(corrida.codigo, 0) << "session " << cual << " for " << tecla << ": " << corrida.error;
  EXPECT_EQ(corrida.salida + corrida.error, "");
  std::vector<std::string> antes(sesiones.size());
  for (std::size_t i = 0; i < sesiones.size(); ++i) antes[i] = teclasDe(i);
  // A window that is slow to learn the keys of a keyboard loses the first ones; none may go elsewhere.
  auto const llego = [&] { return teclasDe(cual).substr(antes[cual].size()).ends_with(tecla + "\n"); };
  for (int veces = 0; veces < vecesQueSeTeclea && !llego(); ++veces) {
    Teclado{escritorio}.linea(tecla);
    (void)esperarA(llego, std::chrono::seconds{2});
  }
  EXPECT_TRUE(llego()) << "session " << cual << " has " << teclasDe(cual);
  for (std::size_t i = 0; i < sesiones.size(); ++i) {
    if (i == cual) continue;
    EXPECT_EQ(teclasDe(i), antes[i]) << "session " << i << " instead of " << cual;
  }
}

pid_t Sesiones::anfitrionDe(std::size_t cual) const {
  auto const lider = ayudante::liderDelTty(sesiones.at(cual).tty);
  return lider ? lider->padre : 0;
}

std::string Sesiones::variableDe(std::size_t cual, std::string const& nombre) const {
  auto const lider = ayudante::liderDelTty(sesiones.at(cual).tty);
  return lider ? ayudante::variableDelProceso(lider->pid, nombre) : std::string{};
}

bool Sesiones::hacer(std::vector<std::string> const& palabras) const {
  auto const corrida = escritorio.correr(palabras);
  EXPECT_EQ(corrida.codigo, 0) << palabras.front() << ": " << corrida.error;
  return corrida.codigo == 0;
}

}  // namespace zorve::pruebas
