#include "ZorveTerminal/Enfocar.h"

#include <charconv>
#include <chrono>
#include <thread>

#include "ZorveCore/Escape.h"
#include "ZorveCore/TextoVisible.h"
#include "ZorvePlatform/Linux/SesionGraficaLinux.h"
#include "ZorveTerminal/ProcesosDelTty.h"

namespace zorve {

namespace {

constexpr std::chrono::milliseconds plazoDeLaVentana{4000};
constexpr std::chrono::milliseconds entreIntentos{100};
constexpr int vecesQueSeInsiste = 10;

std::uint64_t ventanaEscrita(std::string const& texto) {
  std::uint64_t ventana = 0;
  auto const* const fin = texto.data() + texto.size();
  return std::from_chars(texto.data(), fin, ventana).ptr == fin ? ventana : 0;
}

/// Asks again for a moment: a shell may run before its window is shown.
template <class Buscar>
auto insistir(Buscar const& buscar) {
  auto hallada = buscar();
  for (int i = 0; i < vecesQueSeInsiste && !hallada; ++i) {
    std::this_thread::sleep_for(entreIntentos);
    hallada = buscar();
  }
  return hallada;
}

}  // namespace

std::string frase(SinVentana porque, FichaDeTerminal const& ficha, std::string const& tty) {
  auto const donde = textoVisible(ttyCorto(tty));
  if (porque == SinVentana::varias) {
    return "Zorve found several " + ficha.nombre + " windows and cannot tell which one shows " + donde + ".";
  }
  return "Zorve found no " + ficha.nombre + " session on " + donde +
         ". The Claude session is still alive, but its window no longer exists.";
}

std::expected<void, std::string> enfocar(FichaDeTerminal const& ficha, std::string const& tty) {
  auto const lider = liderDelTty(tty);
  if (!lider) return std::unexpected{frase(SinVentana::ninguna, ficha, tty)};
  auto const ventanas = ventanasDe(sesionGraficaDelProceso());
  if (!ventanas || !ventanas->abierta()) return std::unexpected{std::string{"the desktop cannot be reached"}};
  auto const propia = ventanaEscrita(variableDelProceso(lider->pid, "WINDOWID"));
  auto const ventana = insistir([&] { return ventanaDe(ventanas->todas(), ascendencia(*lider), propia); });
  if (!ventana) return std::unexpected{frase(ventana.error(), ficha, tty)};
  if (ventanas->activar(*ventana, plazoDeLaVentana)) return {};
  return std::unexpected{"the window manager did not bring the " + ficha.nombre + " window to the front"};
}

}  // namespace zorve
