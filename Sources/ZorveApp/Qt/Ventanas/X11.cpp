#include "ZorveApp/Qt/Ventanas/X11.h"

#include <QGuiApplication>
#include <memory>

namespace zorve::X11 {

xcb_connection_t* conexion() {
  auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 ? x11->connection() : nullptr;
}

std::uint32_t momentoDelServidor() {
  std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> const propia{xcb_connect(nullptr, nullptr),
                                                                            &xcb_disconnect};
  if (xcb_connection_has_error(propia.get()) != 0) return 0;
  return HoraDelServidor{propia.get(), raiz(propia.get())}.ahora();
}

void escribirClase(xcb_connection_t* conexion, xcb_window_t ventana, QByteArray const& instancia,
                   QByteArray const& clase) {
  auto const nombres = instancia + '\0' + clase + '\0';
  xcb_change_property(conexion, XCB_PROP_MODE_REPLACE, ventana, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                      static_cast<std::uint32_t>(nombres.size()), nombres.constData());
}

std::optional<QRgb> pixel(xcb_connection_t* conexion, QPoint donde) {
  auto const pedido =
      xcb_get_image(conexion, XCB_IMAGE_FORMAT_Z_PIXMAP, raiz(conexion), static_cast<std::int16_t>(donde.x()),
                    static_cast<std::int16_t>(donde.y()), 1, 1, 0xFFFFFF);
  Respuesta<xcb_get_image_reply_t> const imagen{xcb_get_image_reply(conexion, pedido, nullptr)};
  if (!imagen || imagen->depth != 24 || xcb_get_image_data_length(imagen.get()) < 4) return std::nullopt;
  auto const* const color = xcb_get_image_data(imagen.get());
  return qRgb(color[2], color[1], color[0]);
}

}  // namespace zorve::X11
