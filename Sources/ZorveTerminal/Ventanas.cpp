#include "ZorveTerminal/Ventanas.h"

#include "ZorveTerminal/Sway.h"
#include "ZorveTerminal/VentanasDeKWin.h"
#include "ZorveTerminal/VentanasX.h"

namespace zorve {

std::unique_ptr<Ventanas> ventanasDe(SesionGrafica sesion) {
  switch (sesion) {
    case SesionGrafica::x11:
      return std::make_unique<VentanasX>();
    case SesionGrafica::sway:
      return std::make_unique<Sway>();
    case SesionGrafica::kwin:
      return std::make_unique<VentanasDeKWin>();
    case SesionGrafica::otra:
      break;
  }
  return nullptr;
}

}  // namespace zorve
