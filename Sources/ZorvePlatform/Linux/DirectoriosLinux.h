#pragma once

#include <string>

#include "ZorveCore/Lectura/Directorios.h"

namespace zorve {

/// Goes to each directory step by step, and to no step that lies on a file system which is not this machine's
/// own: links are read, not followed, so that none leads there unseen.
class DirectoriosLinux final : public Directorios {
 public:
  /// `mountinfo`: the file that lists what is mounted.
  explicit DirectoriosLinux(std::string mountinfo = "/proc/self/mountinfo");

  [[nodiscard]] std::vector<std::string> losQueFaltan(std::span<std::string const> rutas) override;

 private:
  std::string mountinfo_;
};

}  // namespace zorve
