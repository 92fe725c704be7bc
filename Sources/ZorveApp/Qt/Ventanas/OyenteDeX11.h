#pragma once

#include <xcb/xcb.h>

#include <QAbstractNativeEventFilter>
#include <cstdint>

namespace zorve {

/// Hears what the X server sends to the toolkit's own connection while it lives. Only where the program shows
/// its windows on an X server (`hay`). Main thread only.
class OyenteDeX11 : public QAbstractNativeEventFilter {
 public:
  [[nodiscard]] static bool hay();

  OyenteDeX11(OyenteDeX11 const&) = delete;
  OyenteDeX11& operator=(OyenteDeX11 const&) = delete;

  bool nativeEventFilter(QByteArray const& clase, void* mensaje, qintptr* resultado) final;

 protected:
  OyenteDeX11();
  ~OyenteDeX11() override;

  /// Every event, before the toolkit has it; true keeps it from the toolkit.
  virtual bool alSuceso(xcb_generic_event_t const& suceso) = 0;

  /// The event's type, whoever sent it.
  [[nodiscard]] static std::uint8_t tipoDe(xcb_generic_event_t const& suceso);
  /// Whether it is the X Input extension's event of that number (XINPUT 2).
  [[nodiscard]] bool esDeEntrada(xcb_generic_event_t const& suceso, std::uint16_t cual) const;
  [[nodiscard]] bool hayEntrada() const { return entrada_ != 0; }

  [[nodiscard]] xcb_connection_t* conexion() const { return conexion_; }
  [[nodiscard]] xcb_window_t raiz() const { return raiz_; }

 private:
  xcb_connection_t* conexion_;
  xcb_window_t raiz_;
  std::uint8_t entrada_ = 0;
};

}  // namespace zorve
