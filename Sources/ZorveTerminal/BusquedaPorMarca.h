#pragma once

#include <chrono>
#include <cstdint>
#include <expected>
#include <string>

#include "ZorveCore/Terminales/FichaDeTerminal.h"
#include "ZorveTerminal/Pestanas.h"
#include "ZorveTerminal/SesionEnTty.h"
#include "ZorveTerminal/Ventanas.h"

namespace zorve::ayudante {

/// What may be tried where the mark shows nowhere at first.
enum class Intento : std::uint8_t {
  nada,
  /// The terminal's tabs are gone through; each window shows what it showed before if that was in vain.
  porPestanas,
  /// The terminal has shown the session, but a window's title may follow only when it has the keyboard: each
  /// gets it in turn, and the terminal is asked once more.
  porVentanas,
};

/// Finds the window that shows the session by a mark in its title, and takes the mark away again. Takes 4 s
/// at most while the terminal answers. Fails with one sentence.
[[nodiscard]] std::expected<std::uint64_t, std::string> buscarPorMarca(FichaDeTerminal const& ficha,
                                                                       SesionEnTty const& sesion,
                                                                       Ventanas const& ventanas,
                                                                       Pestanas* pestanas, Intento intento);

}  // namespace zorve::ayudante
