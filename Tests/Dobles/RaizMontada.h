#pragma once

#include <fstream>
#include <sstream>
#include <string>

namespace zorve::dobles {

/// Whether the table of mounts names the root. In a chroot it does not, and nothing can be told of any
/// directory.
[[nodiscard]] inline bool raizMontada() {
  std::ifstream tabla{"/proc/self/mountinfo"};
  std::string palabra;
  for (std::string linea; std::getline(tabla, linea);) {
    std::istringstream campos{linea};
    for (int i = 0; i < 5; ++i) campos >> palabra;  // proc_pid_mountinfo(5): the fifth is the place
    if (palabra == "/") return true;
  }
  return false;
}

}  // namespace zorve::dobles
