#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "ZorveCore/FalloDelSistema.h"
#include "ZorveCore/Modelo.h"

namespace zorve {

/// One external program to run: an absolute path and its arguments, no shell in between.
struct ComandoDeApertura {
  std::string ejecutable;
  std::vector<std::string> args;
  bool operator==(ComandoDeApertura const&) const = default;
};

/// The session cannot be brought to the front. `tty` is its device without "/dev/", or nothing when it has
/// none.
struct NoSePuedeEnfocar {
  std::optional<std::string> tty;
  bool operator==(NoSePuedeEnfocar const&) const = default;
};

/// What a driver answers: commands to run in order, or that focusing is not possible.
using PlanDeApertura = std::variant<std::vector<ComandoDeApertura>, NoSePuedeEnfocar>;

/// A failure of ours, or the system's when a program could not be started.
using FalloDeApertura = std::variant<IndexError, FalloDelSistema>;

}  // namespace zorve
