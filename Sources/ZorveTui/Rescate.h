#pragma once

#include <termios.h>

#include <string>

namespace zorve::tui {

/// Gives a terminal back whatever ends the program: faults of any thread, an exception that nobody takes. One
/// at a time in a process. Signals end the process as they would without it.
class Rescate {
 public:
  /// From now on `restablecer` is written to `terminal` and `modos` are put back before the program dies.
  Rescate(int terminal, termios const& modos, std::string const& restablecer);
  Rescate(Rescate const&) = delete;
  Rescate& operator=(Rescate const&) = delete;
  /// The terminal is in order: nothing is rescued any more.
  ~Rescate();

  /// While the terminal is not ours (suspended) there is nothing to give back.
  void pausar();
  void seguir();

  /// The same at once; safe in signal handlers.
  static void restablecer();
};

}  // namespace zorve::tui
