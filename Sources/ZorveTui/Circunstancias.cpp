#include "ZorveTui/Circunstancias.h"

#include <unistd.h>

#include <algorithm>
#include <array>

#include "ZorvePlatform/Posix/Variable.h"
#include "ZorveTui/EnPath.h"

namespace zorve::tui {

bool hayEscritorio(bool enUnMac) {
  if (!variable("SSH_CONNECTION").empty() || !variable("SSH_TTY").empty()) return false;
  return enUnMac || !variable("DISPLAY").empty() || !variable("WAYLAND_DISPLAY").empty();
}

ModoDeApertura modoDe(Pedido const& pedido, bool hayEscritorio, bool dentroDeTmux) {
  if (pedido.imprimir) return ModoDeApertura::imprimir;
  if (pedido.aqui) return ModoDeApertura::aqui;
  if (pedido.emergente && dentroDeTmux) return ModoDeApertura::ventanaDeTmux;
  return hayEscritorio ? ModoDeApertura::escritorio : ModoDeApertura::aqui;
}

TmuxDeAqui tmuxDelEntorno(std::string const& rutaPs) {
  auto const carpeta = variable("TMUX_TMPDIR");
  return {.programa = enPath(variable("PATH"), "tmux"),
          .variable = variable("TMUX"),
          .enchufeDeCostumbre =
              (carpeta.empty() ? "/tmp" : carpeta) + "/tmux-" + std::to_string(::getuid()) + "/default",
          .rutaPs = rutaPs};
}

SenasDeColor senasDelEntorno(int colores) {
  return {.noColor = variable("NO_COLOR"),
          .colorTerm = variable("COLORTERM"),
          .colorFgBg = variable("COLORFGBG"),
          .colores = colores};
}

bool tomaCopias(std::string const& term) {
  constexpr std::array dispuestas{"xterm-kitty", "xterm-ghostty", "foot",
                                  "foot-extra",  "alacritty",     "wezterm"};
  return std::ranges::count(dispuestas, term) > 0;
}

}  // namespace zorve::tui
