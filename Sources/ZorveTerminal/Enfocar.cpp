#include "ZorveTerminal/Enfocar.h"

#include <algorithm>
#include <charconv>
#include <chrono>

#include "ZorveCore/Escape.h"
#include "ZorveCore/TextoVisible.h"
#include "ZorveTerminal/ProcesosDelTty.h"

namespace zorve {

namespace {

constexpr std::chrono::milliseconds plazoDeLaVentana{4000};

std::uint32_t ventanaEscrita(std::string const& texto) {
  std::uint32_t ventana = 0;
  auto const* const fin = texto.data() + texto.size();
  return std::from_chars(texto.data(), fin, ventana).ptr == fin ? ventana : 0;
}

}  // namespace

std::optional<std::uint32_t> ventanaDe(std::span<VentanaX const> ventanas, std::span<pid_t const> ascendencia,
                                       std::uint32_t propia) {
  auto const escrita = std::ranges::find(ventanas, propia, &VentanaX::ventana);
  if (propia != 0 && escrita != ventanas.end() &&
      std::ranges::find(ascendencia, escrita->pid) != ascendencia.end()) {
    return propia;
  }
  for (auto const pid : ascendencia) {
    auto const primera = std::ranges::find(ventanas, pid, &VentanaX::pid);
    if (primera == ventanas.end()) continue;
    bool const unica = std::ranges::count(ventanas, pid, &VentanaX::pid) == 1;
    return unica ? std::optional{primera->ventana} : std::nullopt;
  }
  return std::nullopt;
}

std::string sinVentana(FichaDeTerminal const& ficha, std::string const& tty) {
  return "Zorve found no " + ficha.nombre + " session on " + textoVisible(ttyCorto(tty)) +
         ". The Claude session is still alive, but its window no longer exists.";
}

std::expected<void, std::string> enfocar(FichaDeTerminal const& ficha, std::string const& tty) {
  auto const lider = liderDelTty(tty);
  if (!lider) return std::unexpected{sinVentana(ficha, tty)};
  VentanasX const pantalla;
  if (!pantalla.abierta()) return std::unexpected{std::string{"the X display cannot be opened"}};
  auto const propia = ventanaEscrita(variableDelProceso(lider->pid, "WINDOWID"));
  auto const ventana = ventanaDe(pantalla.todas(), ascendencia(*lider), propia);
  if (!ventana) return std::unexpected{sinVentana(ficha, tty)};
  if (pantalla.activar(*ventana, plazoDeLaVentana)) return {};
  return std::unexpected{"the window manager did not bring the " + ficha.nombre + " window to the front"};
}

}  // namespace zorve
