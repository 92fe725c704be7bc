#pragma once

#include <QRect>
#include <QScreen>
#include <cstdint>
#include <vector>

struct xcb_connection_t;

namespace zorve {

/// The rectangles that bars reserve on an X11 desktop (_NET_WM_STRUT_PARTIAL), in native pixels.
[[nodiscard]] std::vector<QRect> barrasDelEscritorio(xcb_connection_t* conexion, std::uint32_t raiz);

/// The rectangles reserved by one strut of twelve numbers (left, right, top, bottom, then where each begins
/// and ends) on a desktop of size `total`.
[[nodiscard]] std::vector<QRect> barrasDePuntal(std::vector<std::uint32_t> const& puntal, QSize total);

/// `marco` without the bars at its edges; bars of neighbouring screens take nothing.
[[nodiscard]] QRect sinBarras(QRect marco, std::vector<QRect> const& barras);
/// The same in the screen's own coordinates; at the least what the toolkit knows.
[[nodiscard]] QRect sinBarras(QScreen const& pantalla, std::vector<QRect> const& barras);

}  // namespace zorve
