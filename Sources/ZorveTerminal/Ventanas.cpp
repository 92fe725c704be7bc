#include "ZorveTerminal/Ventanas.h"

#include "ZorveTerminal/Sway.h"
#include "ZorveTerminal/VentanasDeGnome.h"
#include "ZorveTerminal/VentanasDeKWin.h"
#include "ZorveTerminal/VentanasX.h"

namespace zorve::ayudante {

std::unique_ptr<Ventanas> ventanasDe(SesionGrafica sesion, std::vector<pid_t> const& procesos) {
  switch (sesion) {
    case SesionGrafica::x11:
    case SesionGrafica::gnomeSinExtension:
      return std::make_unique<VentanasX>();
    case SesionGrafica::sway:
      return std::make_unique<Sway>();
    case SesionGrafica::kwin:
      return std::make_unique<VentanasDeKWin>();
    case SesionGrafica::gnome:
      return std::make_unique<VentanasDeGnome>(procesos);
    case SesionGrafica::otra:
      break;
  }
  return nullptr;
}

}  // namespace zorve::ayudante
