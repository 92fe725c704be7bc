#include "ZorveTerminal/EnfocarPorTestigo.h"

#include <algorithm>
#include <vector>

#include "ZorvePlatform/Posix/Variable.h"
#include "ZorveTerminal/Bus.h"
#include "ZorveTerminal/FrasesDeEnfoque.h"
#include "ZorveTerminal/Pestanas.h"
#include "ZorveTerminal/PestanasDeGnomeTerminal.h"

namespace zorve::ayudante {

namespace {

using Hecho = std::expected<void, std::string>;

/// Pages are numbered as they are opened, and a number of one that was closed is asked for in vain.
constexpr std::uint32_t paginasComoMucho = 64;

std::string testigoDelEntorno() {
  auto testigo = variable("XDG_ACTIVATION_TOKEN");
  return testigo.empty() ? variable("DESKTOP_STARTUP_ID") : testigo;
}

Opcion permiso(std::string const& testigo) { return {"desktop-startup-id", testigo}; }

Hecho segun(Respuesta const& respuesta, FichaDeTerminal const& ficha, SesionEnTty const& sesion) {
  if (respuesta) return {};
  bool const calla = respuesta.error() == FalloDeBus::calla;
  return std::unexpected{calla ? fraseNoContesta(ficha, sesion.tty) : fraseSinExtension(ficha, sesion.tty)};
}

/// Which page is whose GNOME Console tells nobody: only where it has one session there is no doubt.
Hecho enConsole(FichaDeTerminal const& ficha, SesionEnTty const& sesion, std::string const& testigo) {
  Bus const bus;
  auto const anfitrion = bus.procesoDe("org.gnome.Console");
  if (!sesion.desciendeDe(anfitrion)) return std::unexpected{fraseSinExtension(ficha, sesion.tty)};
  if (sesionesDe(anfitrion).size() != 1) return std::unexpected{fraseVariasSinExtension(ficha, sesion.tty)};
  Metodo const metodo{"org.gnome.Console", "/org/gnome/Console", "org.gtk.Actions", "Activate"};
  for (std::uint32_t pagina = 1; pagina <= paginasComoMucho; ++pagina) {
    std::vector<Argumento> const argumentos{"focus-page", Variantes{{pagina}}, permiso(testigo)};
    if (auto hecho = segun(bus.llamar(metodo, argumentos), ficha, sesion); !hecho) return hecho;
  }
  return {};
}

/// Its search provider shows a session by name; who shows it says the activation before.
Hecho enGnomeTerminal(FichaDeTerminal const& ficha, SesionEnTty const& sesion, std::string const& testigo) {
  Bus const bus;
  constexpr char const* servicio = "org.gnome.Terminal";
  if (!sesion.desciendeDe(bus.procesoDe(servicio))) {
    return std::unexpected{fraseSinExtension(ficha, sesion.tty)};
  }
  std::vector<Argumento> const activacion{permiso(testigo)};
  auto const permitida =
      bus.llamar({servicio, "/org/gnome/Terminal", "org.gtk.Application", "Activate"}, activacion);
  if (auto hecho = segun(permitida, ficha, sesion); !hecho) return hecho;
  auto const pestanas = pestanasDeGnomeTerminal(sesion);
  auto const mostrada = pestanas->mostrar();
  if (mostrada == Mostrada::si) return {};
  return std::unexpected{mostrada == Mostrada::calla ? fraseNoContesta(ficha, sesion.tty)
                                                     : fraseSinExtension(ficha, sesion.tty)};
}

}  // namespace

Hecho enfocarPorTestigo(FichaDeTerminal const& ficha, SesionEnTty const& sesion) {
  auto const testigo = testigoDelEntorno();
  if (!testigo.empty() && ficha.identificador == "org.gnome.Console") {
    return enConsole(ficha, sesion, testigo);
  }
  if (!testigo.empty() && ficha.identificador == "org.gnome.Terminal") {
    return enGnomeTerminal(ficha, sesion, testigo);
  }
  return std::unexpected{fraseSinExtension(ficha, sesion.tty)};
}

}  // namespace zorve::ayudante
