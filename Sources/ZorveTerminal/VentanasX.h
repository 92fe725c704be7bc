#pragma once

#include <memory>

#include "ZorveTerminal/Ventanas.h"

namespace zorve::ayudante {

/// The windows of the X display that $DISPLAY names, by what its window manager publishes (EWMH). Dialogs
/// are none.
class VentanasX final : public Ventanas {
 public:
  VentanasX();
  VentanasX(VentanasX const&) = delete;
  VentanasX& operator=(VentanasX const&) = delete;
  ~VentanasX() override;

  [[nodiscard]] bool abierta() const override;
  [[nodiscard]] bool sonDeX() const override { return true; }
  [[nodiscard]] std::vector<Ventana> todas() const override;
  [[nodiscard]] bool activar(std::uint64_t id, std::chrono::milliseconds plazo) const override;

 private:
  struct Conexion;
  std::unique_ptr<Conexion> conexion_;
};

}  // namespace zorve::ayudante
