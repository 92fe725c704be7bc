#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "ZorveApp/Despachador.h"
#include "ZorveApp/Portapapeles.h"
#include "ZorveCore/Terminales/Ejecutor.h"
#include "ZorveTui/SitioEnTmux.h"

namespace zorve::tui {

/// The control sequence by which a program puts text on the clipboard of whoever sits at the terminal: OSC 52
/// (Xterm Control Sequences).
[[nodiscard]] std::string secuenciaDeCopia(std::string_view texto);

/// The clipboard at the other end of the terminal. Inside tmux it is told to, which also keeps the text as a
/// buffer of its own; where it does not want to, and elsewhere, the terminal is. Nobody answers. Main thread
/// only.
class PortapapelesDeConsola final : public Portapapeles {
 public:
  /// `escribir` hands bytes to the terminal, on the main thread, as long as the process lives.
  PortapapelesDeConsola(TmuxDeAqui tmux, Ejecutor const& ejecutor, Despachador& despachador);

  std::function<void(std::string_view)> escribir = [](std::string_view) {};
  void copiar(std::string const& texto) override;

 private:
  TmuxDeAqui tmux_;
  Ejecutor const& ejecutor_;
  Despachador& despachador_;
};

}  // namespace zorve::tui
