#include "ZorveX11/X11.h"

namespace zorve::X11 {

namespace {

/// In units of four bytes.
constexpr std::uint32_t masLargo = 16384;
constexpr std::uint8_t sinLaMarcaDeEnviado = 0x7F;

xcb_atom_t interno(xcb_connection_t* conexion, std::string_view nombre, bool soloSiExiste) {
  auto const pedido = xcb_intern_atom(conexion, soloSiExiste ? 1 : 0,
                                      static_cast<std::uint16_t>(nombre.size()), nombre.data());
  Respuesta<xcb_intern_atom_reply_t> const respuesta{xcb_intern_atom_reply(conexion, pedido, nullptr)};
  return respuesta ? respuesta->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

/// The property's items, if they are as wide as T.
template <class T, class Todos>
Todos valores(xcb_connection_t* conexion, xcb_window_t de, xcb_atom_t cual) {
  if (cual == XCB_ATOM_NONE) return {};
  auto const pedido = xcb_get_property(conexion, 0, de, cual, XCB_GET_PROPERTY_TYPE_ANY, 0, masLargo);
  Respuesta<xcb_get_property_reply_t> const respuesta{xcb_get_property_reply(conexion, pedido, nullptr)};
  if (!respuesta || respuesta->format != 8 * sizeof(T)) return {};
  auto const* const datos = static_cast<T const*>(xcb_get_property_value(respuesta.get()));
  return Todos(datos, datos + respuesta->value_len);
}

}  // namespace

xcb_window_t raiz(xcb_connection_t* conexion, int pantalla) {
  auto pantallas = xcb_setup_roots_iterator(xcb_get_setup(conexion));
  for (; pantalla > 0 && pantallas.rem > 0; --pantalla) xcb_screen_next(&pantallas);
  return pantallas.rem > 0 ? pantallas.data->root : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

xcb_atom_t atomo(xcb_connection_t* conexion, std::string_view nombre) {
  return interno(conexion, nombre, true);
}

xcb_atom_t atomoNuevo(xcb_connection_t* conexion, std::string_view nombre) {
  return interno(conexion, nombre, false);
}

xcb_window_t duenoDe(xcb_connection_t* conexion, std::string_view seleccion) {
  auto const nombre = atomo(conexion, seleccion);
  if (nombre == XCB_ATOM_NONE) return XCB_WINDOW_NONE;
  Respuesta<xcb_get_selection_owner_reply_t> const respuesta{
      xcb_get_selection_owner_reply(conexion, xcb_get_selection_owner(conexion, nombre), nullptr)};
  return respuesta ? respuesta->owner : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

std::vector<std::uint32_t> numeros(xcb_connection_t* conexion, xcb_window_t de, xcb_atom_t cual) {
  return valores<std::uint32_t, std::vector<std::uint32_t>>(conexion, de, cual);
}

std::string texto(xcb_connection_t* conexion, xcb_window_t de, xcb_atom_t cual) {
  return valores<char, std::string>(conexion, de, cual);
}

xcb_window_t tecladoEn(xcb_connection_t* conexion) {
  Respuesta<xcb_get_input_focus_reply_t> const foco{
      xcb_get_input_focus_reply(conexion, xcb_get_input_focus(conexion), nullptr)};
  return foco ? foco->focus : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

void pedirAlGestor(xcb_connection_t* conexion, xcb_window_t enLaRaiz, xcb_window_t ventana, xcb_atom_t que,
                   std::uint32_t primero, std::uint32_t segundo) {
  xcb_client_message_event_t mensaje{};
  mensaje.response_type = XCB_CLIENT_MESSAGE;
  mensaje.format = 32;
  mensaje.window = ventana;
  mensaje.type = que;
  mensaje.data.data32[0] = primero;
  mensaje.data.data32[1] = segundo;
  xcb_send_event(conexion, 0, enLaRaiz,
                 XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                 reinterpret_cast<char const*>(&mensaje));
  xcb_flush(conexion);
}

HoraDelServidor::HoraDelServidor(xcb_connection_t* conexion, xcb_window_t raiz)
    : conexion_{conexion}, testigo_{xcb_generate_id(conexion)} {
  std::uint32_t const interes = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_create_window(conexion_, 0, testigo_, raiz, -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                    XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &interes);
}

xcb_timestamp_t HoraDelServidor::ahora() const {
  xcb_change_property(conexion_, XCB_PROP_MODE_APPEND, testigo_, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 0,
                      nullptr);
  xcb_flush(conexion_);
  while (Respuesta<xcb_generic_event_t> const suceso{xcb_wait_for_event(conexion_)}) {
    if ((suceso->response_type & sinLaMarcaDeEnviado) != XCB_PROPERTY_NOTIFY) continue;
    return reinterpret_cast<xcb_property_notify_event_t const*>(suceso.get())->time;
  }
  return XCB_CURRENT_TIME;
}

}  // namespace zorve::X11
