#pragma once

#include "ZorveApp/Portapapeles.h"

namespace zorve {

/// The general pasteboard.
class PortapapelesMac final : public Portapapeles {
 public:
  void copiar(std::string const& texto) override;
};

}  // namespace zorve
