#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ZorveTui/Lienzo.h"
#include "ZorveTui/Paleta.h"

namespace zorve::tui {

/// Turns screens into what a terminal is sent: of the next one only what differs from the last, stroke by
/// stroke: a colour in 24 bits takes more bytes than a move. Positions are ECMA-48's CUP and EL; a frame
/// stands between "set" and "reset" of private mode 2026 (synchronised output) where the terminal has it.
class Pintor {
 public:
  void ponerPaleta(Paleta const& paleta);
  void ponerSincronia(bool sincronia) { sincronia_ = sincronia; }
  /// What the terminal shows is not known any more: the next frame is sent whole, onto a cleared screen.
  void olvidar() { conocido_ = false; }

  /// The bytes that bring the terminal from the last frame to `cuadro`; empty when nothing differs.
  [[nodiscard]] std::string pintar(Cuadro const& cuadro);

 private:
  /// Cells side by side in one stroke.
  struct Tramo {
    Posicion desde;
    Trazo trazo;
    std::string texto;
    /// Where the cursor stands behind it, if that is known.
    std::optional<Posicion> hasta;
  };
  void anotarLinea(std::vector<Tramo>& tramos, Lienzo const& lienzo, std::size_t fila) const;
  void escribir(std::string& destino, std::vector<Tramo>& tramos);
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
