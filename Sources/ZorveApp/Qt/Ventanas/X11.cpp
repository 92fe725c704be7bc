#include "ZorveApp/Qt/Ventanas/X11.h"

#include <QGuiApplication>
#include <span>

namespace zorve::X11 {

xcb_connection_t* conexion() {
  auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 ? x11->connection() : nullptr;
}

xcb_window_t raiz(xcb_connection_t* conexion) {
  return xcb_setup_roots_iterator(xcb_get_setup(conexion)).data->root;
}

namespace {

xcb_atom_t interno(xcb_connection_t* conexion, QByteArray const& nombre, bool soloSiExiste) {
  auto const pedido = xcb_intern_atom(conexion, soloSiExiste ? 1 : 0,
                                      static_cast<std::uint16_t>(nombre.size()), nombre.constData());
  Respuesta<xcb_intern_atom_reply_t> const respuesta{xcb_intern_atom_reply(conexion, pedido, nullptr)};
  return respuesta ? respuesta->atom : 0;
}

}  // namespace

xcb_atom_t atomo(xcb_connection_t* conexion, QByteArray const& nombre) {
  return interno(conexion, nombre, true);
}

xcb_atom_t atomoNuevo(xcb_connection_t* conexion, QByteArray const& nombre) {
  return interno(conexion, nombre, false);
}

xcb_window_t duenoDe(xcb_connection_t* conexion, QByteArray const& seleccion) {
  auto const nombre = atomo(conexion, seleccion);
  if (nombre == 0) return 0;
  Respuesta<xcb_get_selection_owner_reply_t> const respuesta{
      xcb_get_selection_owner_reply(conexion, xcb_get_selection_owner(conexion, nombre), nullptr)};
  return respuesta ? respuesta->owner : 0;
}

std::vector<std::uint32_t> propiedad(xcb_connection_t* conexion, xcb_window_t de, QByteArray const& nombre) {
  auto const clave = atomo(conexion, nombre);
  if (clave == 0) return {};
  auto const pedido = xcb_get_property(conexion, 0, de, clave, XCB_GET_PROPERTY_TYPE_ANY, 0, 4096);
  Respuesta<xcb_get_property_reply_t> const respuesta{xcb_get_property_reply(conexion, pedido, nullptr)};
  if (!respuesta || respuesta->format != 32) return {};
  auto const* const datos = static_cast<std::uint32_t const*>(xcb_get_property_value(respuesta.get()));
  std::span const todos{datos, respuesta->value_len};
  return {todos.begin(), todos.end()};
}

std::uint32_t momentoDelServidor() {
  std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> const propia{xcb_connect(nullptr, nullptr),
                                                                            &xcb_disconnect};
  if (xcb_connection_has_error(propia.get()) != 0) return 0;
  // A property that changes tells when.
  auto const ventana = xcb_generate_id(propia.get());
  std::uint32_t const interes = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_create_window(propia.get(), 0, ventana, raiz(propia.get()), -1, -1, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_ONLY, 0, XCB_CW_EVENT_MASK, &interes);
  xcb_change_property(propia.get(), XCB_PROP_MODE_REPLACE, ventana, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 0,
                      nullptr);
  xcb_flush(propia.get());
  while (Respuesta<xcb_generic_event_t> const evento{xcb_wait_for_event(propia.get())}) {
    if ((evento->response_type & 0x7FU) != XCB_PROPERTY_NOTIFY) continue;
    return reinterpret_cast<xcb_property_notify_event_t const*>(evento.get())->time;
  }
  return 0;
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
