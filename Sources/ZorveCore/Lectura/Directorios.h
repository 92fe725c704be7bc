#pragma once

#include <span>
#include <string>
#include <vector>

namespace zorve {

/// Whether the directories that sessions ran in are still there. Any thread.
class Directorios {
 public:
  Directorios() = default;
  Directorios(Directorios const&) = delete;
  Directorios& operator=(Directorios const&) = delete;
  virtual ~Directorios() = default;

  /// Those of `rutas` that are gone for certain: nothing is there, or what is there is no directory. Left out
  /// are those that may not be looked at, and those that to look at could mean to wait, as for a file server.
  /// It looks for a second at most.
  [[nodiscard]] virtual std::vector<std::string> losQueFaltan(std::span<std::string const> rutas) = 0;
};

}  // namespace zorve
