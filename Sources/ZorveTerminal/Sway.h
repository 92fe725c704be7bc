#pragma once

#include <sys/types.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ZorvePlatform/Posix/Descriptor.h"

namespace zorve {

/// A window that sway lays out.
struct VentanaDeSway {
  std::int64_t id = 0;
  pid_t pid = 0;
  bool enfocada = false;
  bool operator==(VentanaDeSway const&) const = default;
};

/// Every node of sway's tree (the text of its reply) that has a process, in the order of the tree; none when
/// the text is not understood.
[[nodiscard]] std::vector<VentanaDeSway> ventanasDelArbol(std::string_view arbol);

/// The compositor sway, through its socket.
class Sway {
 public:
  /// Connects to the socket at the path that $SWAYSOCK gives.
  Sway();

  [[nodiscard]] bool abierta() const;
  [[nodiscard]] std::vector<VentanaDeSway> ventanas() const;
  /// Brings the window to the front, its workspace too. False when sway does not report it focused
  /// afterwards.
  [[nodiscard]] bool activar(std::int64_t id) const;

 private:
  [[nodiscard]] std::optional<std::string> preguntar(std::uint32_t tipo, std::string_view texto) const;

  Descriptor enchufe_;
};

}  // namespace zorve
