#include "ZorveTerminal/PestanasDeKonsole.h"

#include <algorithm>
#include <optional>

#include "ZorveCore/Texto/Entero.h"
#include "ZorveTerminal/Bus.h"

namespace zorve::ayudante {

namespace {

constexpr char const* ventanas = "/Windows";

std::optional<std::int32_t> numeroTras(std::string_view texto, std::string_view principio) {
  if (!texto.starts_with(principio)) return std::nullopt;
  texto.remove_prefix(principio.size());
  return enteroEn<std::int32_t>(texto);
}

/// Konsole says over D-Bus which sessions each of its windows has, and shows the one that it is told.
class PestanasDeKonsole final : public Pestanas {
 public:
  explicit PestanasDeKonsole(SesionEnTty const& sesion)
      : sesion_{sesion}, servicio_{sesion.variable("KONSOLE_DBUS_SERVICE")} {}

  [[nodiscard]] Mostrada mostrar() override {
    auto const cual = numeroTras(sesion_.variable("KONSOLE_DBUS_SESSION"), "/Sessions/");
    if (!cual || !sesion_.desciendeDe(bus_.procesoDe(servicio_))) return Mostrada::noSabe;
    auto const todas = bus_.numerados(servicio_, ventanas);
    if (!todas) return mostradaSegun(todas.error());
    for (auto const ventana : *todas) {
      if (!tiene(ventana, *cual)) continue;
      std::vector<Argumento> const argumentos{*cual};
      auto const puesta = bus_.llamar(metodo(ventana, "setCurrentSession"), argumentos);
      if (!puesta) return mostradaSegun(puesta.error());
      recordarVentana(ventana, *todas);
      return Mostrada::si;
    }
    return Mostrada::noSabe;
  }

  [[nodiscard]] std::uint64_t ventana() const override { return ventana_; }

 private:
  [[nodiscard]] static std::string objeto(std::uint32_t ventana) {
    return std::string{ventanas} + "/" + std::to_string(ventana);
  }
  [[nodiscard]] Metodo metodo(std::uint32_t ventana, char const* nombre) const {
    return {servicio_, objeto(ventana), "org.kde.konsole.Window", nombre};
  }
  [[nodiscard]] bool tiene(std::uint32_t ventana, std::int32_t cual) const {
    auto const lista = bus_.llamar(metodo(ventana, "sessionList"));
    return lista && std::ranges::find(*lista, DatoDeRespuesta{std::to_string(cual)}) != lista->end();
  }

  /// WINDOWID holds while the session is in the window where it began. The window that a tab was moved to is
  /// told by its rank: Konsole numbers its windows as they come, and so does the X server.
  void recordarVentana(std::uint32_t ventana, std::vector<std::uint32_t> const& todas) {
    if (sesion_.variable("KONSOLE_DBUS_WINDOW") == objeto(ventana)) return;
    std::vector<std::int64_t> deX;
    for (auto const una :
         bus_.numerados(servicio_, "/konsole", "MainWindow_").value_or(std::vector<std::uint32_t>{})) {
      auto const id = bus_.llamar(
          {servicio_, "/konsole/MainWindow_" + std::to_string(una), "org.kde.KMainWindow", "winId"});
      auto const* const numero = id && !id->empty() ? std::get_if<std::int64_t>(&id->front()) : nullptr;
      if (numero != nullptr) deX.push_back(*numero);
    }
    if (deX.size() != todas.size()) return;
    std::ranges::sort(deX);
    auto const rango = std::ranges::find(todas, ventana) - todas.begin();
    ventana_ = static_cast<std::uint64_t>(deX.at(static_cast<std::size_t>(rango)));
  }

  SesionEnTty const& sesion_;
  std::string servicio_;
  Bus bus_;
  std::uint64_t ventana_ = 0;
};

}  // namespace

std::unique_ptr<Pestanas> pestanasDeKonsole(SesionEnTty const& sesion) {
  return std::make_unique<PestanasDeKonsole>(sesion);
}

}  // namespace zorve::ayudante
