#include "ZorveCore/TerminalTmux.h"

#include <algorithm>
#include <utility>

#include "ZorveCore/Escape.h"

namespace zorve {

TerminalTmux::TerminalTmux(std::string rutaDelAyudante, TerminalRef elegida, bool puedeEnfocar)
    : rutaDelAyudante_{std::move(rutaDelAyudante)},
      elegida_{std::move(elegida)},
      puedeEnfocar_{puedeEnfocar} {}

std::string TerminalTmux::identificador() const { return "tmux"; }

std::string TerminalTmux::nombre() const { return "tmux"; }

std::string TerminalTmux::nombreDelBundle() const { return "tmux"; }

bool TerminalTmux::puedeEnfocar() const { return puedeEnfocar_; }

bool TerminalTmux::estaInstalada() const { return false; }

bool TerminalTmux::hospeda(std::string_view command) const { return command == "tmux: server"; }

PlanDeApertura TerminalTmux::planParaAbrir(std::string const& cwd, std::string const& comando) const {
  return elegida_->planParaAbrir(cwd, comando);
}

std::expected<PlanDeApertura, IndexError> TerminalTmux::planParaEnfocar(std::string const& tty) const {
  if (!puedeEnfocar_) return NoSePuedeEnfocar{ttyCorto(tty)};
  return std::vector{ComandoDeApertura{rutaDelAyudante_,
                                       {"focus", identificador(), ttyCorto(tty), elegida_->identificador()}}};
}

Anfitrionas anfitrionasDeLinux(std::string rutaDelAyudante) {
  return [ruta = std::move(rutaDelAyudante)](std::vector<TerminalRef> const& conocidas,
                                             TerminalRef const& elegida) {
    bool const alguna =
        std::ranges::any_of(conocidas, [](TerminalRef const& una) { return una->puedeEnfocar(); });
    auto todas = conocidas;
    todas.push_back(std::make_shared<TerminalTmux>(ruta, elegida, alguna));
    return todas;
  };
}

}  // namespace zorve
