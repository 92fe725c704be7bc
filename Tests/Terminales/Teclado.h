#pragma once

#include <string>
#include <vector>

#include "Terminales/Escritorio.h"

namespace zorve::pruebas {

/// A person's keyboard at a desktop: keys go to whichever window has the focus there.
class Teclado {
 public:
  explicit Teclado(Escritorio const& escritorio) : escritorio_{escritorio} {}

  /// Waits until a window has the keyboard. False when none has after a while.
  [[nodiscard]] bool tieneVentana() const;
  /// Presses and releases a key by its X name ("Return", "Up").
  void tecla(std::string const& nombre) const;
  /// The same with Control held down.
  void control(std::string const& nombre) const;
  /// Types `texto` and ends the line.
  void linea(std::string const& texto) const;

 private:
  [[nodiscard]] bool enWayland() const { return escritorio_.variables.contains("WAYLAND_DISPLAY"); }
  void enSway(std::vector<std::string> teclas) const;
  void mandar(std::vector<std::string> palabras) const;

  Escritorio const& escritorio_;
};

}  // namespace zorve::pruebas
