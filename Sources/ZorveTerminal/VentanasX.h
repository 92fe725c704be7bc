#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <sys/types.h>

namespace zorve {

/// A window that the window manager knows, and the process that says it is its own (0 when none does).
struct VentanaX {
  std::uint32_t ventana = 0;
  pid_t pid = 0;
  bool operator==(VentanaX const&) const = default;
};

/// The windows of an X display, by what its window manager publishes (EWMH).
class VentanasX {
 public:
  /// Opens the display that $DISPLAY names.
  VentanasX();
  VentanasX(VentanasX const&) = delete;
  VentanasX& operator=(VentanasX const&) = delete;
  ~VentanasX();

  /// Whether the display is open; without it there are no windows.
  [[nodiscard]] bool abierta() const;
  /// Every window that the window manager lists.
  [[nodiscard]] std::vector<VentanaX> todas() const;
  /// Brings the window to the front, its desktop too, and waits until it is reported active. False when that
  /// did not happen within `plazo`.
  [[nodiscard]] bool activar(std::uint32_t ventana, std::chrono::milliseconds plazo) const;

 private:
  struct Conexion;
  std::unique_ptr<Conexion> conexion_;
};

}  // namespace zorve
