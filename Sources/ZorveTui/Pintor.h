#pragma once

#include <string>

#include "ZorveTui/Lienzo.h"
#include "ZorveTui/Paleta.h"

namespace zorve::tui {

/// Turns screens into what a terminal is sent: of the next one only what differs from the last. Positions are
/// ECMA-48's CUP and EL; a frame stands between "set" and "reset" of private mode 2026 (synchronised output)
/// where the terminal has it.
class Pintor {
 public:
  void ponerPaleta(Paleta const& paleta);
  void ponerSincronia(bool sincronia) { sincronia_ = sincronia; }
  /// What the terminal shows is not known any more: the next frame is sent whole, onto a cleared screen.
  void olvidar() { conocido_ = false; }

  /// The bytes that bring the terminal from the last frame to `cuadro`; empty when nothing differs.
  [[nodiscard]] std::string pintar(Cuadro const& cuadro);

 private:
  void pintarLinea(std::string& destino, Lienzo const& lienzo, std::size_t fila);
  void mover(std::string& destino, Posicion donde);
  void trazar(std::string& destino, Trazo const& trazo);

  Paleta paleta_;
  Cuadro ultimo_;
  bool conocido_ = false;
  bool sincronia_ = false;
  std::optional<Posicion> pluma_;
  std::optional<Trazo> trazo_;
};

}  // namespace zorve::tui
