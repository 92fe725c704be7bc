#pragma once

#include <expected>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ZorveTui/Golpe.h"
#include "ZorveTui/Lienzo.h"

namespace zorve::tui {

/// The process's controlling terminal, taken over to be drawn on: raw keys, the alternate screen, mouse and
/// marked pastes. Standard streams are not touched. It is given back at the object's end, and before a fault
/// ends the program. One at a time in a process; main thread only.
class Consola {
 public:
  /// Fails with one sentence where there is no terminal or none that can be drawn on.
  [[nodiscard]] static std::expected<std::unique_ptr<Consola>, std::string> abrir();
  Consola(Consola const&) = delete;
  Consola& operator=(Consola const&) = delete;
  ~Consola();

  /// Readable when the terminal sent something.
  [[nodiscard]] int descriptor() const;
  [[nodiscard]] Tamano tamano() const;
  /// The "colors" of its description; -1 for none.
  [[nodiscard]] int colores() const;
  /// What came, without waiting.
  [[nodiscard]] std::vector<Golpe> leer();
  /// False when the terminal is gone.
  bool escribir(std::string_view bytes);
  /// Whether somebody is still at its other end.
  [[nodiscard]] bool sigueAhi() const;
  /// Whether it can be asked about itself (Xterm's manner: OSC 11, DECRQM, primary device attributes).
  [[nodiscard]] bool sePuedePreguntar() const;

  /// The terminal as it was before, until `reanudar`, which leaves an unknown screen.
  void suspender();
  void reanudar();

 private:
  struct Dentro;
  explicit Consola(std::unique_ptr<Dentro> dentro);

  std::unique_ptr<Dentro> dentro_;
};

}  // namespace zorve::tui
