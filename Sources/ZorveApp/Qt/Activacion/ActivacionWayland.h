#pragma once

#include "ZorveApp/Qt/Activacion/Activacion.h"

struct wl_display;
struct wl_registry;
struct wl_seat;
struct wl_keyboard;
struct wl_pointer;
struct xdg_activation_v1;

namespace zorve {

/// The xdg-activation protocol. Leaves for our own windows go to the toolkit by the variable in the
/// environment that it reads; leaves for others are asked for over the toolkit's own connection, on whose
/// events the answers come. Main thread only.
class ActivacionWayland final : public Activacion {
 public:
  [[nodiscard]] static bool hay();

  ActivacionWayland();
  ~ActivacionWayland() override;

  void recibir(Testigo testigo) override;
  void alFrente(QWindow& ventana) override;
  void agotar() override;
  void pedir(std::function<void(Testigo)> alTener) override;

 private:
  struct Oyentes;

  wl_registry* registro_ = nullptr;
  wl_seat* asiento_ = nullptr;
  wl_keyboard* teclado_ = nullptr;
  wl_pointer* puntero_ = nullptr;
  xdg_activation_v1* activacion_ = nullptr;
  /// Of the person's last key press or click in a window of ours.
  std::uint32_t ultimoGesto_ = 0;
};

}  // namespace zorve
