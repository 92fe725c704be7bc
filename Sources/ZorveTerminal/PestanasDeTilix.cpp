#include "ZorveTerminal/Bus.h"
#include "ZorveTerminal/Pestanas.h"

namespace zorve {

namespace {

constexpr char const* servicio = "com.gexperts.Tilix";

/// Tilix gives every session a name of its own, and its application's action activate-terminal shows the
/// one of that name: tab, split and all (org.gtk.Actions, GLib's interface for exported actions).
class PestanasDeTilix final : public Pestanas {
 public:
  explicit PestanasDeTilix(SesionEnTty const& sesion) : sesion_{sesion} {}

  [[nodiscard]] Mostrada mostrar() override {
    auto const nombre = sesion_.variable("TILIX_ID");
    if (nombre.empty() || !sesion_.desciendeDe(bus_.procesoDe(servicio))) return Mostrada::noSabe;
    std::vector<Argumento> const argumentos{"activate-terminal", Variantes{{nombre}}, SinOpciones{}};
    auto const respuesta =
        bus_.llamar({servicio, "/com/gexperts/Tilix", "org.gtk.Actions", "Activate"}, argumentos);
    if (respuesta) return Mostrada::si;
    return respuesta.error() == FalloDeBus::calla ? Mostrada::calla : Mostrada::noSabe;
  }

 private:
  SesionEnTty const& sesion_;
  Bus bus_;
};

}  // namespace

std::unique_ptr<Pestanas> pestanasDeTilix(SesionEnTty const& sesion) {
  return std::make_unique<PestanasDeTilix>(sesion);
}

}  // namespace zorve
