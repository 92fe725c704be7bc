#pragma once

#include <expected>
#include <string>

#include <sys/types.h>

#include "ZorvePlatform/Posix/Descriptor.h"
#include "ZorveTerminal/SesionEnTty.h"

namespace zorve::ayudante {

/// A random title that a terminal window shows for a moment, so that it can be told from others. The title
/// before it is kept on the terminal's stack (xterm's control sequences: CSI 22 ; 0 t and CSI 23 ; 0 t) and
/// comes back at the end, whatever ends this process: a process of its own watches over that. Nothing else
/// of the screen changes.
class MarcaDeTitulo {
 public:
  /// Puts the mark on the terminal device `tty` (with or without "/dev/"), which must be the pseudoterminal
  /// of `lider` and both this user's own. Fails with one sentence; what was written by then is undone.
  [[nodiscard]] static std::expected<MarcaDeTitulo, std::string> poner(std::string const& tty,
                                                                       Proceso const& lider);
  MarcaDeTitulo(MarcaDeTitulo&& otra) noexcept;
  MarcaDeTitulo& operator=(MarcaDeTitulo&&) = delete;
  MarcaDeTitulo(MarcaDeTitulo const&) = delete;
  MarcaDeTitulo& operator=(MarcaDeTitulo const&) = delete;
  /// Waits until the former title was asked back.
  ~MarcaDeTitulo();

  [[nodiscard]] std::string const& texto() const { return texto_; }
  /// Writes it once more, in case the session has set a title of its own since.
  void repetir() const;

 private:
  MarcaDeTitulo(std::string texto, Descriptor dispositivo, Descriptor hilo, pid_t guardian);

  std::string texto_;
  Descriptor dispositivo_;
  /// Its end tells the guardian to ask the title back.
  Descriptor hilo_;
  pid_t guardian_ = 0;
};

}  // namespace zorve::ayudante
