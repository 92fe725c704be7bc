#pragma once

#include <xcb/xcb.h>

#include <QAbstractNativeEventFilter>

#include "ZorveApp/Qt/Activacion/Activacion.h"

namespace zorve {

/// The startup notification protocol of freedesktop.org: identifiers end in the time of the person's own key
/// press or click, by which window managers judge who may come to the front. Main thread only.
class ActivacionX11 final : public Activacion, public QAbstractNativeEventFilter {
 public:
  [[nodiscard]] static bool hay();

  ActivacionX11();
  ~ActivacionX11() override;

  void recibir(Testigo testigo) override;
  void alFrente(QWindow& ventana) override;
  void agotar() override;
  void pedir(std::function<void(Testigo)> alTener) override;

  bool nativeEventFilter(QByteArray const& clase, void* mensaje, qintptr* resultado) override;

 private:
  void difundir(QByteArray const& texto);
  void activar(xcb_window_t ventana, std::uint32_t momento);

  xcb_connection_t* conexion_;
  xcb_window_t raiz_;
  std::uint8_t extension_ = 0;
  Testigo testigo_;
  /// When the person last pressed a key or a button in a window of ours, by the server's clock.
  std::uint32_t ultimoGesto_ = 0;
  std::uint32_t pedidos_ = 0;
};

}  // namespace zorve
