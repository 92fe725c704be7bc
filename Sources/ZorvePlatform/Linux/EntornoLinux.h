#pragma once

#include <string>
#include <vector>

namespace zorve {

/// What the environment says of where things are. Absolute paths only: relative and empty ones in the
/// environment do not count.
struct EntornoLinux {
  std::string home;
  /// Where executables are looked for, in order: PATH, and .local/bin of the home, which a process started by
  /// a desktop often misses.
  std::vector<std::string> path;
  std::string configHome;
  /// Where the system's own settings are, the most important place first.
  std::vector<std::string> configDirs = {};
  /// Where applications leave their data, the user's own first.
  std::vector<std::string> datos;
  bool operator==(EntornoLinux const&) const = default;

  /// From this process's environment, with `home` as the user's home. Call it before other threads run.
  [[nodiscard]] static EntornoLinux delProceso(std::string const& home);
};

/// Whether `ruta` is the absolute path of a regular file that this user may run.
[[nodiscard]] bool esEjecutable(std::string const& ruta);

/// The path of the executable regular file `nombre` (absolute, or a bare name looked for in
/// `entorno.path`); empty when there is none.
[[nodiscard]] std::string ejecutableEn(EntornoLinux const& entorno, std::string const& nombre);

}  // namespace zorve
