#include "ZorveTerminal/Pestanas.h"

#include <algorithm>
#include <array>

#include "ZorveTerminal/PestanasDeGnomeTerminal.h"
#include "ZorveTerminal/PestanasDeKgx.h"
#include "ZorveTerminal/PestanasDeKitty.h"
#include "ZorveTerminal/PestanasDeKonsole.h"
#include "ZorveTerminal/PestanasDeTilix.h"

namespace zorve::ayudante {

Mostrada mostradaSegun(FalloDeBus fallo) {
  return fallo == FalloDeBus::calla ? Mostrada::calla : Mostrada::noSabe;
}

Mostrada mostradaSegun(Respuesta const& respuesta) {
  return respuesta ? Mostrada::si : mostradaSegun(respuesta.error());
}

ModoDeEnfoque modoDeEnfoque(std::string_view identificador) {
  constexpr std::array modos{
      ModoDeEnfoque{"org.gnome.Terminal", true, pestanasDeGnomeTerminal},
      ModoDeEnfoque{"org.kde.konsole", false, pestanasDeKonsole},
      ModoDeEnfoque{"kitty", true, pestanasDeKitty},
      ModoDeEnfoque{"xfce4-terminal", true},
      ModoDeEnfoque{"Alacritty", true},
      ModoDeEnfoque{"foot", true},
      ModoDeEnfoque{"org.gnome.Console", true, pestanasDeKgx},
      ModoDeEnfoque{"com.gexperts.Tilix", true, pestanasDeTilix},
      ModoDeEnfoque{"terminator", true},
      ModoDeEnfoque{"xterm", true},
  };
  auto const* const modo = std::ranges::find(modos, identificador, &ModoDeEnfoque::identificador);
  return modo != modos.end() ? *modo : ModoDeEnfoque{.identificador = identificador};
}

}  // namespace zorve::ayudante
