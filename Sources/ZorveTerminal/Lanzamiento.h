#pragma once

#include <chrono>
#include <expected>
#include <string>
#include <vector>

namespace zorve::ayudante {

/// A program to start on its own.
struct Lanzamiento {
  /// Absolute path.
  std::string ejecutable;
  /// What follows the program's name.
  std::vector<std::string> args;
  /// "NAME=value" texts.
  std::vector<std::string> entorno;
  /// Where it starts; "/" if that cannot be entered.
  std::string directorio;
  /// The removal of this directory says that all went well; the empty text if nobody will.
  std::string senal;
};

/// How a program that was just started ended: its exit status (128 plus the number when a signal ended it)
/// and one line for a person, with its own words at the end: the last 4 KiB, one line of them behind the
/// other, without those that say "info:", "note:" or "debug:" where there are others.
struct FinTemprano {
  int codigo = 1;
  std::string mensaje;
};

/// Starts the program in a session of its own, with no stream of ours, no descriptor and no signal setting
/// of ours. What it writes after this returns is kept nowhere. Returns as soon as it says that all went well,
/// has ended with status 0, or has lived for `plazo`. Fails when it cannot be started or ends otherwise
/// before.
[[nodiscard]] std::expected<void, FinTemprano> lanzar(Lanzamiento const& lanzamiento,
                                                      std::chrono::milliseconds plazo);

}  // namespace zorve::ayudante
