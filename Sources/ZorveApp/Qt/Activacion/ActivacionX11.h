#pragma once

#include "ZorveApp/Qt/Activacion/Activacion.h"
#include "ZorveApp/Qt/Ventanas/OyenteDeX11.h"

namespace zorve {

/// The startup notification protocol of freedesktop.org: identifiers end in the time of the person's own key
/// press or click, by which window managers judge who may come to the front. Main thread only.
class ActivacionX11 final : public Activacion, private OyenteDeX11 {
 public:
  using OyenteDeX11::hay;

  void recibir(Testigo testigo) override;
  void alFrente(QWindow& ventana) override;
  void agotar() override;
  void pedir(std::function<void(Testigo)> alTener) override;

 private:
  bool alSuceso(xcb_generic_event_t const& suceso) override;
  void difundir(QByteArray const& texto);
  void activar(xcb_window_t ventana, std::uint32_t momento);

  Testigo testigo_;
  /// When the person last pressed a key or a button in a window of ours, by the server's clock.
  std::uint32_t ultimoGesto_ = 0;
  std::uint32_t pedidos_ = 0;
};

}  // namespace zorve
