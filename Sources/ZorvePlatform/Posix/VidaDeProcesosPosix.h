#pragma once

#include "ZorveCore/Lectura/VidaDeProcesos.h"

namespace zorve {

/// Asks the kernel with signal 0.
class VidaDeProcesosPosix final : public VidaDeProcesos {
 public:
  [[nodiscard]] bool vive(std::int32_t pid) override;
};

}  // namespace zorve
