#pragma once

#include "ZorveApp/Portapapeles.h"

namespace zorve {

/// The desktop's clipboard.
class PortapapelesQt final : public Portapapeles {
 public:
  void copiar(std::string const& texto) override;
};

}  // namespace zorve
