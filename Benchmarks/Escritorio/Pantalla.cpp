#include "Pantalla.h"

#include <xcb/xtest.h>

#include <cstdlib>
#include <memory>
#include <stdexcept>

namespace zorve::medir {

namespace {

struct Liberar {
  void operator()(void* respuesta) const { std::free(respuesta); }
};
template <class T>
using Respuesta = std::unique_ptr<T, Liberar>;

}  // namespace

Pantalla::Pantalla() : conexion_{xcb_connect(nullptr, nullptr)} {
  if (xcb_connection_has_error(conexion_) != 0) {
    xcb_disconnect(conexion_);
    throw std::runtime_error{"there is no X server to draw on; ./bench starts one for it"};
  }
  raiz_ = xcb_setup_roots_iterator(xcb_get_setup(conexion_)).data->root;
}

Pantalla::~Pantalla() { xcb_disconnect(conexion_); }

std::vector<std::uint8_t> Pantalla::mirar(int x, int y, int ancho, int alto) const {
  auto const pedido = xcb_get_image(conexion_, XCB_IMAGE_FORMAT_Z_PIXMAP, raiz_, static_cast<std::int16_t>(x),
                                    static_cast<std::int16_t>(y), static_cast<std::uint16_t>(ancho),
                                    static_cast<std::uint16_t>(alto), 0xFFFFFF);
  Respuesta<xcb_get_image_reply_t> const imagen{xcb_get_image_reply(conexion_, pedido, nullptr)};
  if (!imagen) throw std::runtime_error{"the screen cannot be read"};
  auto const* const datos = xcb_get_image_data(imagen.get());
  return {datos, datos + xcb_get_image_data_length(imagen.get())};
}

void Pantalla::ponerPuntero(int x, int y) const {
  xcb_warp_pointer(conexion_, XCB_NONE, raiz_, 0, 0, 0, 0, static_cast<std::int16_t>(x),
                   static_cast<std::int16_t>(y));
  xcb_flush(conexion_);
}

std::uint8_t Pantalla::teclaDe(std::uint32_t simbolo) const {
  auto const* const servidor = xcb_get_setup(conexion_);
  auto const primera = servidor->min_keycode;
  auto const cuantas = static_cast<std::uint8_t>(servidor->max_keycode - primera + 1);
  Respuesta<xcb_get_keyboard_mapping_reply_t> const mapa{xcb_get_keyboard_mapping_reply(
      conexion_, xcb_get_keyboard_mapping(conexion_, primera, cuantas), nullptr)};
  auto const* const simbolos = xcb_get_keyboard_mapping_keysyms(mapa.get());
  for (int i = 0; i < cuantas; ++i) {
    if (simbolos[i * mapa->keysyms_per_keycode] == simbolo) return static_cast<std::uint8_t>(primera + i);
  }
  throw std::runtime_error{"no key gives this symbol"};
}

void Pantalla::enviar(std::uint8_t clase, std::uint8_t tecla) const {
  xcb_test_fake_input(conexion_, clase, tecla, XCB_CURRENT_TIME, raiz_, 0, 0, 0);
}

void Pantalla::teclear(std::uint32_t simbolo) const {
  auto const tecla = teclaDe(simbolo);
  enviar(XCB_KEY_PRESS, tecla);
  enviar(XCB_KEY_RELEASE, tecla);
  xcb_flush(conexion_);
}

}  // namespace zorve::medir
