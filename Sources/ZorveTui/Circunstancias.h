#pragma once

#include <string>

#include "ZorveTui/AperturaDeConsola.h"
#include "ZorveTui/Paleta.h"

namespace zorve::tui {

/// What was asked for on the command line.
struct Pedido {
  bool aqui = false;
  bool imprimir = false;
  bool emergente = false;
  std::string filtro;
};

/// Whether windows can be opened where the person sits: a desktop session is named (on a Mac there is always
/// one) and nobody came over SSH.
[[nodiscard]] bool hayEscritorio(bool enUnMac);

/// Where sessions open.
[[nodiscard]] ModoDeApertura modoDe(Pedido const& pedido, bool hayEscritorio, bool dentroDeTmux);

/// What the environment says of tmux and of colours. Before other threads run.
[[nodiscard]] TmuxDeAqui tmuxDelEntorno(std::string const& rutaPs);
[[nodiscard]] SenasDeColor senasDelEntorno(int colores);
/// Whether the terminal is one of those that take copies unless they are told otherwise.
[[nodiscard]] bool tomaCopias(std::string const& term);

}  // namespace zorve::tui
