#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace zorve::ayudante {

/// A process as /proc tells it.
struct Proceso {
  pid_t pid = 0;
  pid_t padre = 0;
  pid_t sesion = 0;
  /// The device number of its terminal, 0 for none.
  dev_t tty = 0;
  /// When it started, in ticks since the system did; 0 when that is not told.
  std::uint64_t inicio = 0;
  bool operator==(Proceso const&) const = default;
};

/// What the text of /proc/PID/stat says; nothing when it cannot be understood. A process may be named
/// anything, blanks and parentheses included.
[[nodiscard]] std::optional<Proceso> leerStat(std::string const& texto);

/// The process at this moment, or nothing.
[[nodiscard]] std::optional<Proceso> procesoVivo(pid_t pid);

/// The process that leads the session on the terminal device `tty` (with or without "/dev/"); nothing when
/// there is no such device or no such process. `deQuien`, where it is known, is a process of that very
/// session: then only its own leader counts, and only if it sees the device that is here by that name. A
/// container may have another one of the same name and number.
[[nodiscard]] std::optional<Proceso> liderDelTty(std::string const& tty, std::optional<pid_t> deQuien = {});

/// The leaders of sessions on terminal devices that are children of the process, the eldest first: what a
/// terminal shows.
[[nodiscard]] std::vector<Proceso> sesionesDe(pid_t anfitrion);

/// The process and those that it descends from, itself first, at most 64.
[[nodiscard]] std::vector<pid_t> ascendencia(Proceso const& proceso);

/// The name of the process, at most 15 characters, or the empty text.
[[nodiscard]] std::string nombreDelProceso(pid_t pid);

/// A variable that the process was started with, or the empty text.
[[nodiscard]] std::string variableDelProceso(pid_t pid, std::string const& nombre);

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
  /// Whether its leader still is that process, and not another one that got its number.
  [[nodiscard]] bool sigue() const;
  /// Whether it descends from the process.
  [[nodiscard]] bool desciendeDe(pid_t pid) const;
};

/// Nothing where `liderDelTty` has nothing.
[[nodiscard]] std::optional<SesionEnTty> sesionEnTty(std::string const& tty,
                                                     std::optional<pid_t> deQuien = {});

}  // namespace zorve::ayudante
