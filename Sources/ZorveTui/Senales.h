#pragma once

#include <signal.h>  // NOLINT(modernize-deprecated-headers): sigaction is POSIX, not C++

#include <array>
#include <cstddef>
#include <vector>

#include "ZorvePlatform/Posix/Descriptor.h"

namespace zorve::tui {

/// The signals that people and systems send to a program on a terminal, as bytes to wait for. One at a time
/// in a process.
class Senales {
 public:
  static constexpr std::array cuales{SIGWINCH, SIGTSTP, SIGCONT, SIGINT, SIGTERM, SIGHUP, SIGQUIT};

  Senales();
  Senales(Senales const&) = delete;
  Senales& operator=(Senales const&) = delete;
  /// Each is handled again as it was before.
  ~Senales();

  /// Readable when a signal has come.
  [[nodiscard]] int descriptor() const { return lectura_.numero(); }
  /// Those that came since the last time, in order.
  [[nodiscard]] std::vector<int> llegadas() const;
  /// Stops the program's process group as the terminal would, until it is told to go on. Where nobody could
  /// tell it so (no shell has it as a job) it goes on at once.
  void detenerse() const;

 private:
  Descriptor lectura_;
  Descriptor escritura_;
  std::array<struct sigaction, cuales.size()> anteriores_{};
};

}  // namespace zorve::tui
