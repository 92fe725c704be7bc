#include "ZorveTerminal/PestanasDeTilix.h"

#include "ZorveTerminal/Bus.h"

namespace zorve::ayudante {

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
    return mostradaSegun(
        bus_.llamar({servicio, "/com/gexperts/Tilix", "org.gtk.Actions", "Activate"}, argumentos));
  }

 private:
  SesionEnTty const& sesion_;
  Bus bus_;
};

}  // namespace

std::unique_ptr<Pestanas> pestanasDeTilix(SesionEnTty const& sesion) {
  return std::make_unique<PestanasDeTilix>(sesion);
}

}  // namespace zorve::ayudante
