#pragma once

#include <cstdint>
#include <optional>

#include "ZorveApp/Qt/Ventanas/OyenteDeX11.h"
#include "ZorveApp/Qt/Ventanas/SistemaDeVentanas.h"

namespace zorve {

/// X11. The panel is no business of the window manager: it stands where it is put, takes the keyboard itself
/// and gives it back. Button presses elsewhere are heard as raw events, without a grab.
class SistemaDeVentanasX11 final : public SistemaDeVentanas, private OyenteDeX11 {
 public:
  using OyenteDeX11::hay;

  [[nodiscard]] bool hayTransparencia() const override;
  [[nodiscard]] bool hayDesenfoque() const override;
  void desenfocar(QWindow& ventana, QRegion const& forma) override;
  [[nodiscard]] QRect areaLibre(QScreen const& pantalla) const override;
  void preparar(QWindow& ventana) override;
  void tomarElTeclado(QWindow& ventana) override;
  void devolverElTeclado(QWindow& ventana) override;
  void soltarElTeclado(QWindow& ventana) override;
  [[nodiscard]] bool tieneElTeclado(QWindow const& ventana) const override;
  void vigilarPulsaciones(QWindow& ventana, std::function<void(QPoint)> alPulsarFuera) override;

 private:
  bool alSuceso(xcb_generic_event_t const& suceso) override;
  void escucharPulsaciones(bool si);
  void comprobarPulsacion();
  [[nodiscard]] bool nadieTieneElTeclado() const;
  void darElTeclado(std::uint32_t ventana);

  std::optional<std::uint32_t> anterior_;
  QWindow* vigilada_ = nullptr;
  std::function<void(QPoint)> alPulsarFuera_;
};

}  // namespace zorve
