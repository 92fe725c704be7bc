#include "ZorveTerminal/PestanasDeKgx.h"

#include <algorithm>

#include "ZorveTerminal/Bus.h"

namespace zorve::ayudante {

namespace {

constexpr char const* servicio = "org.gnome.Console";
/// GNOME Console shows the page whose number it is told, but tells nobody which page is whose. Pages are
/// numbered from 1 as they are opened, and a number is never used again: the page of the Nth oldest session
/// has the number N, or a higher one if older ones were closed.
class PestanasDeKgx final : public Pestanas {
 public:
  explicit PestanasDeKgx(SesionEnTty const& sesion) : sesion_{sesion} {}

  [[nodiscard]] Mostrada mostrar() override { return Mostrada::noSabe; }

  [[nodiscard]] bool recorre() const override { return true; }

  [[nodiscard]] Mostrada siguiente() override {
    if (primera_ == 0) primera_ = pagina_ = laMenor();
    if (primera_ == 0) return Mostrada::noSabe;
    if (pagina_ == primera_ + cuantas_) {
      pagina_ = primera_;
      cuantas_ *= 2;
    }
    std::vector<Argumento> const argumentos{"focus-page", Variantes{{pagina_++}}, SinOpciones{}};
    return mostradaSegun(
        bus_.llamar({servicio, "/org/gnome/Console", "org.gtk.Actions", "Activate"}, argumentos));
  }

 private:
  /// The least that the session's page can be numbered; 0 when there is no telling.
  [[nodiscard]] std::uint32_t laMenor() const {
    auto const anfitrion = bus_.procesoDe(servicio);
    if (!sesion_.desciendeDe(anfitrion)) return 0;
    auto const todas = sesionesDe(anfitrion);
    auto const suya = std::ranges::find(todas, sesion_.lider);
    return suya != todas.end() ? static_cast<std::uint32_t>(suya - todas.begin()) + 1 : 0;
  }

  SesionEnTty const& sesion_;
  Bus bus_;
  std::uint32_t primera_ = 0;
  std::uint32_t pagina_ = 0;
  /// How many are shown before it begins anew: a window that has just opened is slow to follow.
  std::uint32_t cuantas_ = 1;
};

}  // namespace

std::unique_ptr<Pestanas> pestanasDeKgx(SesionEnTty const& sesion) {
  return std::make_unique<PestanasDeKgx>(sesion);
}

}  // namespace zorve::ayudante
