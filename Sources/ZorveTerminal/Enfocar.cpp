#include "ZorveTerminal/Enfocar.h"

#include <chrono>
#include <thread>

#include "ZorveCore/Texto/Entero.h"
#include "ZorveTerminal/BusquedaPorMarca.h"
#include "ZorveTerminal/EleccionDeVentana.h"
#include "ZorveTerminal/EnfocarPorTestigo.h"
#include "ZorveTerminal/FrasesDeEnfoque.h"
#include "ZorveTerminal/Pestanas.h"
#include "ZorveTerminal/SesionEnTty.h"
#include "ZorveTerminal/VentanasDeGnome.h"

namespace zorve::ayudante {

namespace {

constexpr std::chrono::milliseconds plazoDeLaVentana{2500};
constexpr std::chrono::milliseconds entreIntentos{100};
constexpr int vecesQueSeInsiste = 10;

/// Every window, once one of the session's is among them. Asks again for a moment: a shell may run before its
/// window is shown.
std::vector<Ventana> ventanasConLasDeLaSesion(Ventanas const& ventanas, SesionEnTty const& sesion) {
  auto todas = ventanas.todas();
  for (int i = 0; i < vecesQueSeInsiste && delMasCercano(todas, sesion.ascendencia).empty(); ++i) {
    std::this_thread::sleep_for(entreIntentos);
    todas = ventanas.todas();
  }
  return todas;
}

/// The X window that the terminal names, now or when the session began; 0 for none.
std::uint64_t ventanaEscrita(SesionEnTty const& sesion, Pestanas const* pestanas) {
  auto const dicha = pestanas != nullptr ? pestanas->ventana() : 0;
  return dicha != 0 ? dicha : enteroEn<std::uint64_t>(sesion.variable("WINDOWID")).value_or(0);
}

/// The session's window, with its tab shown where the terminal can be made to.
std::expected<std::uint64_t, std::string> mostrar(FichaDeTerminal const& ficha, SesionEnTty const& sesion,
                                                  Ventanas const& ventanas) {
  auto const todas = ventanasConLasDeLaSesion(ventanas, sesion);
  auto const suyas = delMasCercano(todas, sesion.ascendencia);
  if (suyas.empty()) return std::unexpected{fraseNoEsta(ficha, sesion.tty)};
  auto const modo = modoDeEnfoque(ficha.identificador);
  auto const pestanas = modo.pestanas != nullptr ? modo.pestanas(sesion) : nullptr;
  auto const mostrada = pestanas ? pestanas->mostrar() : Mostrada::noSabe;
  if (mostrada == Mostrada::calla) return std::unexpected{fraseNoContesta(ficha, sesion.tty)};

  auto const propia = ventanas.sonDeX() ? ventanaEscrita(sesion, pestanas.get()) : 0;
  auto const ventana = ventanaDe(todas, sesion.ascendencia, propia);
  auto const recorrer = mostrada == Mostrada::noSabe && pestanas && pestanas->recorre() &&
                        sesionesDe(suyas.front().pid).size() != 1;
  if (ventana && !recorrer) return *ventana;
  if (!modo.admiteMarca) return std::unexpected{fraseVarias(ficha, sesion.tty)};
  auto const siNo = mostrada == Mostrada::si ? Intento::porVentanas : Intento::nada;
  return buscarPorMarca(ficha, sesion, ventanas, pestanas.get(), recorrer ? Intento::porPestanas : siNo);
}

/// What to ask for the session's windows. A Wayland compositor starts its X server for whoever asks that:
/// only a session that began in one of its windows does.
std::unique_ptr<Ventanas> ventanasPara(SesionEnTty const& sesion, SesionGrafica grafica) {
  bool const porX = grafica == SesionGrafica::gnomeSinExtension;
  if (porX && sesion.variable("WINDOWID").empty()) return nullptr;
  auto ventanas = ventanasDe(grafica, sesion.ascendencia);
  bool const esDeX =
      !porX || (ventanas->abierta() &&
                !delMasCercano(ventanasConLasDeLaSesion(*ventanas, sesion), sesion.ascendencia).empty());
  return esDeX ? std::move(ventanas) : nullptr;
}

}  // namespace

std::expected<void, std::string> enfocar(FichaDeTerminal const& ficha, std::string const& tty,
                                         std::optional<pid_t> deQuien) {
  auto const sesion = sesionEnTty(tty, deQuien);
  if (!sesion) return std::unexpected{fraseNoEsta(ficha, tty)};
  auto const grafica = sesionDeAhora();
  auto const ventanas = ventanasPara(*sesion, grafica);
  if (!ventanas && grafica == SesionGrafica::gnomeSinExtension) return enfocarPorTestigo(ficha, *sesion);
  if (!ventanas || !ventanas->abierta()) return std::unexpected{std::string{"the desktop cannot be reached"}};
  auto const ventana = mostrar(ficha, *sesion, *ventanas);
  if (!ventana) return std::unexpected{ventana.error()};
  if (!sesion->sigue()) return std::unexpected{fraseNoEsta(ficha, tty)};
  if (ventanas->activar(*ventana, plazoDeLaVentana)) return {};
  return std::unexpected{fraseNoVino(ficha)};
}

}  // namespace zorve::ayudante
