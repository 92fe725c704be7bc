#include "ZorveTerminal/Enfocar.h"

#include <algorithm>
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

std::uint32_t ventanaEscrita(std::string const& texto) {
  std::uint32_t ventana = 0;
  auto const* const fin = texto.data() + texto.size();
  return std::from_chars(texto.data(), fin, ventana).ptr == fin ? ventana : 0;
}

/// The nearest of `ascendencia` that has windows, if it has one alone.
template <class Ventana>
std::expected<Ventana, SinVentana> unicaDelMasCercano(std::span<Ventana const> ventanas,
                                                      std::span<pid_t const> ascendencia) {
  for (auto const pid : ascendencia) {
    auto const primera = std::ranges::find(ventanas, pid, &Ventana::pid);
    if (primera == ventanas.end()) continue;
    if (std::ranges::count(ventanas, pid, &Ventana::pid) > 1) return std::unexpected{SinVentana::varias};
    return *primera;
  }
  return std::unexpected{SinVentana::ninguna};
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

std::string noVino(FichaDeTerminal const& ficha) {
  return "the window manager did not bring the " + ficha.nombre + " window to the front";
}

std::expected<void, std::string> enfocarEnX(FichaDeTerminal const& ficha, std::string const& tty,
                                            Proceso const& lider) {
  VentanasX const pantalla;
  if (!pantalla.abierta()) return std::unexpected{std::string{"the X display cannot be opened"}};
  auto const propia = ventanaEscrita(variableDelProceso(lider.pid, "WINDOWID"));
  auto const ventana = insistir([&] { return ventanaDe(pantalla.todas(), ascendencia(lider), propia); });
  if (!ventana) return std::unexpected{frase(ventana.error(), ficha, tty)};
  if (pantalla.activar(*ventana, plazoDeLaVentana)) return {};
  return std::unexpected{noVino(ficha)};
}

std::expected<void, std::string> enfocarEnSway(FichaDeTerminal const& ficha, std::string const& tty,
                                               Proceso const& lider) {
  Sway const sway;
  if (!sway.abierta()) return std::unexpected{std::string{"sway cannot be reached"}};
  auto const ventana = insistir([&] { return ventanaDe(sway.ventanas(), ascendencia(lider)); });
  if (!ventana) return std::unexpected{frase(ventana.error(), ficha, tty)};
  if (sway.activar(*ventana)) return {};
  return std::unexpected{noVino(ficha)};
}

}  // namespace

std::expected<std::uint32_t, SinVentana> ventanaDe(std::span<VentanaX const> ventanas,
                                                   std::span<pid_t const> ascendencia, std::uint32_t propia) {
  auto const escrita = std::ranges::find(ventanas, propia, &VentanaX::ventana);
  if (propia != 0 && escrita != ventanas.end() &&
      std::ranges::find(ascendencia, escrita->pid) != ascendencia.end()) {
    return propia;
  }
  auto const hallada = unicaDelMasCercano(ventanas, ascendencia);
  if (!hallada) return std::unexpected{hallada.error()};
  return hallada->ventana;
}

std::expected<std::int64_t, SinVentana> ventanaDe(std::span<VentanaDeSway const> ventanas,
                                                  std::span<pid_t const> ascendencia) {
  auto const hallada = unicaDelMasCercano(ventanas, ascendencia);
  if (!hallada) return std::unexpected{hallada.error()};
  return hallada->id;
}

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
  return sesionGraficaDelProceso() == SesionGrafica::sway ? enfocarEnSway(ficha, tty, *lider)
                                                          : enfocarEnX(ficha, tty, *lider);
}

}  // namespace zorve
