#include "ZorveTerminal/Enfocar.h"

#include <chrono>
#include <thread>

#include "ZorveCore/Entero.h"
#include "ZorvePlatform/Linux/SesionGraficaLinux.h"
#include "ZorveTerminal/BusquedaPorMarca.h"
#include "ZorveTerminal/EleccionDeVentana.h"
#include "ZorveTerminal/FrasesDeEnfoque.h"
#include "ZorveTerminal/Pestanas.h"
#include "ZorveTerminal/SesionEnTty.h"

namespace zorve {

namespace {

constexpr std::chrono::milliseconds plazoDeLaVentana{2500};
constexpr std::chrono::milliseconds entreIntentos{100};
constexpr int vecesQueSeInsiste = 10;

/// Asks again for a moment: a shell may run before its window is shown.
std::vector<Ventana> ventanasDeLaSesion(Ventanas const& ventanas, SesionEnTty const& sesion) {
  auto suyas = delMasCercano(ventanas.todas(), sesion.ascendencia);
  for (int i = 0; i < vecesQueSeInsiste && suyas.empty(); ++i) {
    std::this_thread::sleep_for(entreIntentos);
    suyas = delMasCercano(ventanas.todas(), sesion.ascendencia);
  }
  return suyas;
}

/// The X window that the terminal names, now or when the session began; 0 for none.
std::uint64_t ventanaEscrita(SesionEnTty const& sesion, Pestanas const* pestanas) {
  auto const dicha = pestanas != nullptr ? pestanas->ventana() : 0;
  return dicha != 0 ? dicha : enteroEn<std::uint64_t>(sesion.variable("WINDOWID")).value_or(0);
}

/// The session's window, with its tab shown where the terminal can be made to.
std::expected<std::uint64_t, std::string> mostrar(FichaDeTerminal const& ficha, SesionEnTty const& sesion,
                                                  Ventanas const& ventanas) {
  auto const suyas = ventanasDeLaSesion(ventanas, sesion);
  if (suyas.empty()) return std::unexpected{fraseNoEsta(ficha, sesion.tty)};
  auto const modo = modoDeEnfoque(ficha.identificador);
  auto const pestanas = modo.pestanas != nullptr ? modo.pestanas(sesion) : nullptr;
  auto const mostrada = pestanas ? pestanas->mostrar() : Mostrada::noSabe;
  if (mostrada == Mostrada::calla) return std::unexpected{fraseNoContesta(ficha, sesion.tty)};

  auto const propia = ventanas.sonDeX() ? ventanaEscrita(sesion, pestanas.get()) : 0;
  auto const ventana = ventanaDe(suyas, sesion.ascendencia, propia);
  auto const recorrer = mostrada == Mostrada::noSabe && pestanas && pestanas->recorre() &&
                        sesionesDe(suyas.front().pid).size() != 1;
  if (ventana && !recorrer) return *ventana;
  if (!modo.admiteMarca) return std::unexpected{fraseVarias(ficha, sesion.tty)};
  auto const siNo = mostrada == Mostrada::si ? Intento::porVentanas : Intento::nada;
  return buscarPorMarca(ficha, sesion, ventanas, pestanas.get(), recorrer ? Intento::porPestanas : siNo);
}

}  // namespace

std::expected<void, std::string> enfocar(FichaDeTerminal const& ficha, std::string const& tty) {
  auto const sesion = sesionEnTty(tty);
  if (!sesion) return std::unexpected{fraseNoEsta(ficha, tty)};
  auto const ventanas = ventanasDe(sesionGraficaDelProceso());
  if (!ventanas || !ventanas->abierta()) return std::unexpected{std::string{"the desktop cannot be reached"}};
  auto const ventana = mostrar(ficha, *sesion, *ventanas);
  if (!ventana) return std::unexpected{ventana.error()};
  if (ventanas->activar(*ventana, plazoDeLaVentana)) return {};
  return std::unexpected{fraseNoVino(ficha)};
}

}  // namespace zorve
