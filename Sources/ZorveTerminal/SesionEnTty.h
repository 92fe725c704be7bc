#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ZorveTerminal/ProcesosDelTty.h"

namespace zorve {

/// The session on a terminal device, as its processes tell it.
struct SesionEnTty {
  /// With or without "/dev/".
  std::string tty;
  /// The process that leads it.
  Proceso lider;
  /// The leader and those that it descends from, itself first.
  std::vector<pid_t> ascendencia;

  /// A variable that the leader was started with, or the empty text.
  [[nodiscard]] std::string variable(std::string const& nombre) const {
    return variableDelProceso(lider.pid, nombre);
  }
  /// Whether it descends from the process.
  [[nodiscard]] bool desciendeDe(pid_t pid) const;
};

/// Nothing when there is no such device, or nobody leads a session on it.
[[nodiscard]] std::optional<SesionEnTty> sesionEnTty(std::string const& tty);

}  // namespace zorve
