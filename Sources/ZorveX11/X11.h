#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// What the panel and the helper both ask of an X server, over xcb (X Window System Protocol, release 6.8;
/// ICCCM 2.0; Extended Window Manager Hints 1.5). Every question waits for its answer; a connection is used
/// by one thread.
namespace zorve::X11 {

struct Liberar {
  void operator()(void* respuesta) const {
    std::free(respuesta);
  }  // NOLINT(cppcoreguidelines-no-malloc): xcb's
};
template <class T>
using Respuesta = std::unique_ptr<T, Liberar>;

/// The root window of one of the server's screens; XCB_WINDOW_NONE where it has no such screen.
[[nodiscard]] xcb_window_t raiz(xcb_connection_t* conexion, int pantalla = 0);

/// 0 for a name that nobody has used on this server.
[[nodiscard]] xcb_atom_t atomo(xcb_connection_t* conexion, std::string_view nombre);
/// Makes the name known to the server if nobody has; 0 when it does not answer.
[[nodiscard]] xcb_atom_t atomoNuevo(xcb_connection_t* conexion, std::string_view nombre);

[[nodiscard]] xcb_window_t duenoDe(xcb_connection_t* conexion, std::string_view seleccion);

/// The 32-bit items of a property; empty when it is absent or of another width.
[[nodiscard]] std::vector<std::uint32_t> numeros(xcb_connection_t* conexion, xcb_window_t de,
                                                 xcb_atom_t cual);
/// The bytes of a property; empty when it is absent or of another width.
[[nodiscard]] std::string texto(xcb_connection_t* conexion, xcb_window_t de, xcb_atom_t cual);

/// The window that has the keyboard, XCB_INPUT_FOCUS_POINTER_ROOT, or none.
[[nodiscard]] xcb_window_t tecladoEn(xcb_connection_t* conexion);

/// Asks the window manager, which listens at the root, for something about `ventana`.
void pedirAlGestor(xcb_connection_t* conexion, xcb_window_t enLaRaiz, xcb_window_t ventana, xcb_atom_t que,
                   std::uint32_t primero, std::uint32_t segundo);

/// Tells the server's time by a property of an unseen window: its change says when (ICCCM 2.1). Reads the
/// connection's events and drops what is not its own, so the connection must be for asking only.
class HoraDelServidor {
 public:
  HoraDelServidor(xcb_connection_t* conexion, xcb_window_t raiz);

  /// Milliseconds since the server started, wrapping; XCB_CURRENT_TIME when the connection broke.
  [[nodiscard]] xcb_timestamp_t ahora() const;

 private:
  xcb_connection_t* conexion_;
  xcb_window_t testigo_;
};

}  // namespace zorve::X11
