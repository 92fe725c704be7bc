#pragma once

#include <xcb/xcb.h>

#include <QByteArray>
#include <QPoint>
#include <QRgb>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <vector>

namespace zorve::X11 {

struct Liberar {
  void operator()(void* respuesta) const { std::free(respuesta); }
};
template <class T>
using Respuesta = std::unique_ptr<T, Liberar>;

/// The toolkit's own connection, or null where the window system is another one.
[[nodiscard]] xcb_connection_t* conexion();
[[nodiscard]] xcb_window_t raiz(xcb_connection_t* conexion);

/// 0 for a name that nobody has used on this server.
[[nodiscard]] xcb_atom_t atomo(xcb_connection_t* conexion, QByteArray const& nombre);
/// Makes the name known to the server if nobody has.
[[nodiscard]] xcb_atom_t atomoNuevo(xcb_connection_t* conexion, QByteArray const& nombre);
[[nodiscard]] xcb_window_t duenoDe(xcb_connection_t* conexion, QByteArray const& seleccion);

/// The 32-bit items of a property; empty when it is absent or of another width.
[[nodiscard]] std::vector<std::uint32_t> propiedad(xcb_connection_t* conexion, xcb_window_t de,
                                                   QByteArray const& nombre);

/// The server's time, in milliseconds, asked over a connection of its own; 0 when it does not answer.
[[nodiscard]] std::uint32_t momentoDelServidor();

/// The names by which a window manager knows whose window it is. Before the window is shown.
void escribirClase(xcb_connection_t* conexion, xcb_window_t ventana, QByteArray const& instancia,
                   QByteArray const& clase);

/// The colour of the screen at `donde`, in native pixels; nothing where it cannot be read or is not of 24
/// bits.
[[nodiscard]] std::optional<QRgb> pixel(xcb_connection_t* conexion, QPoint donde);

}  // namespace zorve::X11
