#pragma once

#include <set>
#include <string>
#include <utility>

#include "ZorveCore/Terminales/AplicacionesInstaladas.h"

namespace zorve::dobles {

/// A machine with exactly these applications; a test may change them.
class AplicacionesFijas final : public AplicacionesInstaladas {
 public:
  AplicacionesFijas() = default;
  explicit AplicacionesFijas(std::set<std::string> unas) : instaladas{std::move(unas)} {}

  [[nodiscard]] bool hay(std::string const& identificador) const override {
    return instaladas.contains(identificador);
  }

  std::set<std::string> instaladas;
};

}  // namespace zorve::dobles
