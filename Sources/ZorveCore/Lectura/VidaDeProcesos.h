#pragma once

#include <cstdint>

namespace zorve {

/// Tells whether a process exists, whoever owns it. Any thread.
class VidaDeProcesos {
 public:
  VidaDeProcesos() = default;
  VidaDeProcesos(VidaDeProcesos const&) = delete;
  VidaDeProcesos& operator=(VidaDeProcesos const&) = delete;
  virtual ~VidaDeProcesos() = default;

  /// `pid` is at least 1. A process of another user counts as alive.
  [[nodiscard]] virtual bool vive(std::int32_t pid) = 0;
};

}  // namespace zorve
