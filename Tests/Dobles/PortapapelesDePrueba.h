#pragma once

#include <optional>
#include <string>

#include "ZorveApp/Portapapeles.h"

namespace zorve::dobles {

/// A clipboard that a test reads.
class PortapapelesDePrueba final : public Portapapeles {
 public:
  void copiar(std::string const& texto) override {
    contenido = texto;
    ++copias;
  }

  std::optional<std::string> contenido;
  int copias = 0;
};

}  // namespace zorve::dobles
