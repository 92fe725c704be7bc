#pragma once

#include <QAbstractNativeEventFilter>
#include <cstdint>
#include <optional>

#include "ZorveApp/Qt/Ventanas/SistemaDeVentanas.h"

struct xcb_connection_t;

namespace zorve {

/// X11. The panel is no business of the window manager: it stands where it is put, takes the keyboard itself
/// and gives it back. Button presses elsewhere are heard as raw events, without a grab.
class SistemaDeVentanasX11 final : public SistemaDeVentanas, public QAbstractNativeEventFilter {
 public:
  /// Whether the program shows its windows on an X server.
  [[nodiscard]] static bool hay();

  SistemaDeVentanasX11();
  ~SistemaDeVentanasX11() override;

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

  bool nativeEventFilter(QByteArray const& clase, void* mensaje, qintptr* resultado) override;

 private:
  void escucharPulsaciones(bool si);
  void comprobarPulsacion();
  [[nodiscard]] std::uint32_t duenoDelTeclado() const;
  [[nodiscard]] bool nadieTieneElTeclado() const;
  void darElTeclado(std::uint32_t ventana);

  xcb_connection_t* conexion_;
  std::uint32_t raiz_;
  std::uint8_t extension_ = 0;
  std::optional<std::uint32_t> anterior_;
  QWindow* vigilada_ = nullptr;
  std::function<void(QPoint)> alPulsarFuera_;
};

}  // namespace zorve
