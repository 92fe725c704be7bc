#pragma once

#include <cstdint>
#include <fstream>
#include <string>

namespace zorve::dobles {

/// How much more memory this process had resident at most since the object was made, in bytes. Elsewhere than
/// on Linux nothing is known, and 0 is said.
class CimaDeMemoria {
 public:
  CimaDeMemoria() {
    std::ofstream{"/proc/self/clear_refs"} << 5;
    antes_ = cima();
  }

  [[nodiscard]] std::int64_t crecida() const { return cima() - antes_; }

 private:
  static std::int64_t cima() {
    std::ifstream estado{"/proc/self/status"};
    for (std::string palabra; estado >> palabra;) {
      std::int64_t kilobytes = 0;
      if (palabra == "VmHWM:" && estado >> kilobytes) return kilobytes * 1024;
    }
    return 0;
  }

  std::int64_t antes_ = 0;
};

}  // namespace zorve::dobles
