#include "ZorveCore/Terminales/AnfitrionaTmux.h"

#include <algorithm>
#include <utility>

#include "ZorveCore/Texto/Escape.h"

namespace zorve {

AnfitrionaTmux::AnfitrionaTmux(std::string rutaDelAyudante, TerminalRef elegida, bool puedeEnfocar)
    : rutaDelAyudante_{std::move(rutaDelAyudante)},
      elegida_{std::move(elegida)},
      puedeEnfocar_{puedeEnfocar} {}

std::string AnfitrionaTmux::nombre() const { return "tmux"; }

bool AnfitrionaTmux::hospeda(std::string_view command) const { return command == procesoDelServidorDeTmux; }

bool AnfitrionaTmux::puedeEnfocar() const { return puedeEnfocar_; }

std::expected<PlanDeApertura, IndexError> AnfitrionaTmux::planParaEnfocar(std::string const& tty) const {
  if (!puedeEnfocar_) return NoSePuedeEnfocar{ttyCorto(tty)};
  return std::vector{
      ComandoDeApertura{rutaDelAyudante_, {"focus", "tmux", ttyCorto(tty), elegida_->identificador()}}};
}

Anfitrionas anfitrionasDeLinux(std::string rutaDelAyudante) {
  return [ruta = std::move(rutaDelAyudante)](std::vector<TerminalRef> const& conocidas,
                                             TerminalRef const& elegida) {
    bool const alguna =
        std::ranges::any_of(conocidas, [](TerminalRef const& una) { return una->puedeEnfocar(); });
    auto anfitrionas = soloLasConocidas(conocidas, elegida);
    anfitrionas.push_back(std::make_shared<AnfitrionaTmux>(ruta, elegida, alguna));
    return anfitrionas;
  };
}

}  // namespace zorve
