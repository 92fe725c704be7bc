#include "ZorveTerminal/PestanasDeKitty.h"

#include <algorithm>
#include <array>

#include "ZorveTerminal/EnchufeLocal.h"

namespace zorve::ayudante {

namespace {

constexpr std::chrono::milliseconds plazo{1500};
constexpr std::size_t maximoDeRespuesta = 4096;

/// kitty shows a session by number where its remote control listens on a socket (kitty's documentation, "The
/// kitty remote control protocol"): tab, split and all.
class PestanasDeKitty final : public Pestanas {
 public:
  explicit PestanasDeKitty(SesionEnTty const& sesion) : sesion_{sesion} {}

  [[nodiscard]] Mostrada mostrar() override {
    auto const donde = sesion_.variable("KITTY_LISTEN_ON");
    auto const cual = sesion_.variable("KITTY_WINDOW_ID");
    auto const cifras = [](char letra) { return letra >= '0' && letra <= '9'; };
    if (!donde.starts_with("unix:") || cual.empty() || !std::ranges::all_of(cual, cifras)) {
      return Mostrada::noSabe;
    }
    auto const enchufe = conectarA(std::string_view{donde}.substr(5), plazo);
    if (!enchufe || !sesion_.desciendeDe(quienEscucha(enchufe))) return Mostrada::noSabe;
    auto const orden =
        "\033P@kitty-cmd{\"cmd\":\"focus-window\",\"version\":[0,26,0],\"payload\":{\"match\":\"id:" + cual +
        "\"}}\033\\";
    if (!escribirTodo(enchufe, orden)) return Mostrada::calla;
    std::string respuesta;
    std::array<char, 1> letra{};
    while (!respuesta.ends_with("\033\\") && respuesta.size() < maximoDeRespuesta) {
      if (!leerTodo(enchufe, letra)) return respuesta.empty() ? Mostrada::calla : Mostrada::noSabe;
      respuesta += letra[0];
    }
    return respuesta.contains("\"ok\": true") || respuesta.contains("\"ok\":true") ? Mostrada::si
                                                                                   : Mostrada::noSabe;
  }

 private:
  SesionEnTty const& sesion_;
};

}  // namespace

std::unique_ptr<Pestanas> pestanasDeKitty(SesionEnTty const& sesion) {
  return std::make_unique<PestanasDeKitty>(sesion);
}

}  // namespace zorve::ayudante
