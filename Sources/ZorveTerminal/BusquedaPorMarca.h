#pragma once

#include <chrono>
#include <cstdint>
#include <expected>
#include <string>

#include "ZorveCore/FichaDeTerminal.h"
#include "ZorveTerminal/Pestanas.h"
#include "ZorveTerminal/SesionEnTty.h"
#include "ZorveTerminal/Ventanas.h"

namespace zorve {

/// What may be tried where the mark shows nowhere at first.
struct ComoBuscar {
  /// Its tabs are gone through, and each window shows what it showed before if that was in vain. Or null.
  Pestanas* pestanas = nullptr;
  /// The session is the one that its window shows: its title follows when the window has the keyboard, so
  /// each window gets it in turn.
  bool estaALaVista = false;
};

/// Finds the window that shows the session by a mark in its title, and takes the mark away again. Takes 4 s
/// at most while the terminal answers. Fails with one sentence.
[[nodiscard]] std::expected<std::uint64_t, std::string> buscarPorMarca(FichaDeTerminal const& ficha,
                                                                       SesionEnTty const& sesion,
                                                                       Ventanas const& ventanas,
                                                                       ComoBuscar const& como);

}  // namespace zorve
