#include "ZorveTerminal/PestanasDeGnomeTerminal.h"

#include <algorithm>
#include <optional>

#include "ZorveTerminal/Bus.h"

namespace zorve::ayudante {

namespace {

constexpr char const* servicio = "org.gnome.Terminal";
constexpr char const* ventanas = "/org/gnome/Terminal/window";
constexpr std::string_view pantalla = "/org/gnome/Terminal/screen/";

/// GNOME Terminal shows a session by its name where its search provider is on (org.gnome.Shell's
/// SearchProvider2). Elsewhere it only tells and sets which tab, by number, a window shows: they are gone
/// through.
class PestanasDeGnomeTerminal final : public Pestanas {
 public:
  explicit PestanasDeGnomeTerminal(SesionEnTty const& sesion) : sesion_{sesion} {}

  [[nodiscard]] Mostrada mostrar() override {
    if (!sesion_.desciendeDe(bus_.procesoDe(servicio))) return Mostrada::noSabe;
    auto nombre = sesion_.variable("GNOME_TERMINAL_SCREEN");
    if (!nombre.starts_with(pantalla)) return Mostrada::noSabe;
    nombre.erase(0, pantalla.size());
    (void)std::ranges::replace(nombre, '_', '-');
    std::vector<Argumento> const argumentos{nombre, std::vector<std::string>{}, std::uint32_t{0}};
    return mostradaSegun(bus_.llamar(
        {servicio, "/org/gnome/Terminal/SearchProvider", "org.gnome.Shell.SearchProvider2", "ActivateResult"},
        argumentos));
  }

  [[nodiscard]] bool recorre() const override { return true; }

  [[nodiscard]] Mostrada siguiente() override {
    if (!preguntadas_) {
      auto const todas = bus_.numerados(servicio, ventanas);
      if (!todas) return mostradaSegun(todas.error());
      porVer_ = *todas;
      auto const sesiones = static_cast<std::int32_t>(sesionesDe(bus_.procesoDe(servicio)).size());
      // Every other window has one tab at least.
      pestanasComoMucho_ = sesiones - static_cast<std::int32_t>(todas->size()) + 1;
      preguntadas_ = true;
    }
    for (; !porVer_.empty(); dejarVentana()) {
      if (!original_) original_ = activa();
      if (original_ == pestana_) ++pestana_;
      if (!original_ || pestana_ >= pestanasComoMucho_) continue;
      poner(pestana_++);
      return Mostrada::si;
    }
    return Mostrada::noSabe;
  }

  void volver() override {
    if (!porVer_.empty() && original_) poner(*original_);
  }

 private:
  [[nodiscard]] Metodo metodo(char const* nombre) const {
    return {servicio, std::string{ventanas} + "/" + std::to_string(porVer_.back()), "org.gtk.Actions",
            nombre};
  }

  /// Which tab the window shows; nothing where it has only one, which the action is disabled for.
  [[nodiscard]] std::optional<std::int32_t> activa() const {
    std::vector<Argumento> const argumentos{"active-tab"};
    auto const respuesta = bus_.llamar(metodo("Describe"), argumentos);
    if (!respuesta || respuesta->empty() || respuesta->front() != DatoDeRespuesta{true}) return std::nullopt;
    auto const* const numero = std::get_if<std::int64_t>(&respuesta->back());
    return numero != nullptr ? std::optional{static_cast<std::int32_t>(*numero)} : std::nullopt;
  }

  /// The terminal takes any number, and shows nothing else for one that is too high.
  void poner(std::int32_t pestana) const {
    std::vector<Argumento> const argumentos{"active-tab", Variante{pestana}, SinOpciones{}};
    [[maybe_unused]] auto const puesta = bus_.llamar(metodo("SetState"), argumentos);
  }

  void dejarVentana() {
    volver();
    porVer_.pop_back();
    original_.reset();
    pestana_ = 0;
  }

  SesionEnTty const& sesion_;
  Bus bus_;
  bool preguntadas_ = false;
  /// The windows whose tabs are still to be shown, the one at work last.
  std::vector<std::uint32_t> porVer_;
  /// Which tab that one showed.
  std::optional<std::int32_t> original_;
  /// The next tab to show.
  std::int32_t pestana_ = 0;
  std::int32_t pestanasComoMucho_ = 0;
};

}  // namespace

std::unique_ptr<Pestanas> pestanasDeGnomeTerminal(SesionEnTty const& sesion) {
  return std::make_unique<PestanasDeGnomeTerminal>(sesion);
}

}  // namespace zorve::ayudante
