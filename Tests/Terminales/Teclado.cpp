#include "Terminales/Teclado.h"

#include <algorithm>
#include <stdexcept>

#include "ZorveTerminal/Sway.h"

namespace zorve::pruebas {

bool Teclado::tieneVentana() const {
  return esperarA([this] {
    if (!enWayland())
      return escritorio_.correr({"xdotool", "getwindowfocus", "getwindowname"}).codigo == 0 &&
             escritorio_.correr({"xdotool", "getactivewindow"}).codigo == 0;
    auto const arbol = escritorio_.correr({"swaymsg", "-r", "-t", "get_tree"}).salida;
    return std::ranges::any_of(ayudante::ventanasDelArbol(arbol),
                               [](auto const& ventana) { return ventana.enfocada; });
  });
}

void Teclado::tecla(std::string const& nombre) const {
  if (enWayland()) return enSway({"-k", nombre});
  mandar({"xdotool", "key", nombre});
}

void Teclado::control(std::string const& nombre) const {
  if (enWayland()) return enSway({"-M", "ctrl", "-k", nombre, "-m", "ctrl"});
  mandar({"xdotool", "key", "ctrl+" + nombre});
}

void Teclado::linea(std::string const& texto) const {
  if (enWayland()) return enSway({texto, "-k", "Return"});
  mandar({"xdotool", "type", texto});
  mandar({"xdotool", "key", "Return"});
}

void Teclado::enSway(std::vector<std::string> teclas) const {
  // Every call plugs in a keyboard of its own; the terminal takes a moment to learn its keys.
  for (auto const* const palabra : {"100", "-s", "wtype"}) teclas.insert(teclas.begin(), palabra);
  mandar(std::move(teclas));
}

void Teclado::mandar(std::vector<std::string> palabras) const {
  auto const corrida = escritorio_.correr(std::move(palabras));
  if (corrida.codigo != 0) throw std::runtime_error("no key was sent: " + corrida.error);
}

}  // namespace zorve::pruebas
