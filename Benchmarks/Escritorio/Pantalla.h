#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <vector>

namespace zorve::medir {

/// What a person's eyes and fingers do, on the X server of $DISPLAY.
class Pantalla {
 public:
  Pantalla();
  Pantalla(Pantalla const&) = delete;
  Pantalla& operator=(Pantalla const&) = delete;
  ~Pantalla();

  /// The pixels of a part of the screen.
  [[nodiscard]] std::vector<std::uint8_t> mirar(int x, int y, int ancho, int alto) const;
  void ponerPuntero(int x, int y) const;
  /// Presses and lets go the key that gives this symbol (of the first level).
  void teclear(std::uint32_t simbolo) const;

 private:
  [[nodiscard]] std::uint8_t teclaDe(std::uint32_t simbolo) const;
  void enviar(std::uint8_t clase, std::uint8_t tecla) const;

  xcb_connection_t* conexion_;
  xcb_window_t raiz_ = 0;
};

}  // namespace zorve::medir
