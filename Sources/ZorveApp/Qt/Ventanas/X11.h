#pragma once

#include <QByteArray>
#include <QPoint>
#include <QRgb>
#include <cstdint>
#include <optional>

#include "ZorveX11/X11.h"

namespace zorve::X11 {

/// The toolkit's own connection, or null where the window system is another one.
[[nodiscard]] xcb_connection_t* conexion();

/// The server's time, in milliseconds, asked over a connection of its own; 0 when it does not answer.
[[nodiscard]] std::uint32_t momentoDelServidor();

/// The names by which a window manager knows whose window it is. Before the window is shown.
void escribirClase(xcb_connection_t* conexion, xcb_window_t ventana, QByteArray const& instancia,
                   QByteArray const& clase);

/// The colour of the screen at `donde`, in native pixels; nothing where it cannot be read or is not of 24
/// bits.
[[nodiscard]] std::optional<QRgb> pixel(xcb_connection_t* conexion, QPoint donde);

}  // namespace zorve::X11
