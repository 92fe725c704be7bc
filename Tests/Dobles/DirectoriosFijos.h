#pragma once

#include <algorithm>
#include <atomic>
#include <set>
#include <string>
#include <vector>

#include "ZorveCore/Lectura/Directorios.h"

namespace zorve::dobles {

/// Of which those in `perdidos` are gone. Written before it is used.
class DirectoriosFijos final : public Directorios {
 public:
  [[nodiscard]] std::vector<std::string> losQueFaltan(std::span<std::string const> rutas) override {
    ++miradas;
    std::vector<std::string> faltan;
    std::ranges::copy_if(rutas, std::back_inserter(faltan),
                         [this](auto const& ruta) { return perdidos.contains(ruta); });
    return faltan;
  }

  std::set<std::string> perdidos;
  std::atomic<int> miradas = 0;
};

}  // namespace zorve::dobles
