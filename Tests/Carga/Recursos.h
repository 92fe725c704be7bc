#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace zorve::pruebas {

/// What this process holds now, by /proc.
struct Recursos {
  std::int64_t kilobytes = 0;
  std::int64_t descriptores = 0;
  std::int64_t hilos = 0;

  [[nodiscard]] static Recursos deAhora() {
    Recursos recursos;
    std::ifstream estado{"/proc/self/status"};
    for (std::string palabra; estado >> palabra;) {
      if (palabra == "VmRSS:") estado >> recursos.kilobytes;
      if (palabra == "Threads:") estado >> recursos.hilos;
    }
    recursos.descriptores = std::distance(std::filesystem::directory_iterator{"/proc/self/fd"},
                                          std::filesystem::directory_iterator{});
    return recursos;
  }
};

}  // namespace zorve::pruebas
