#pragma once

#include <QRect>
#include <QSize>

namespace zorve {

/// Room left between the panel and the bar, and between the panel and the screen's edges.
inline constexpr int holgura = 6;

/// What the panel hangs from: the icon's rectangle, or the point of the click where the icon's is not known.
struct Ancla {
  QRect icono;
  bool soloPunto = false;
};

/// `tamano`, or as much of it as `libre` has room for.
[[nodiscard]] QSize tamanoQueCabe(QSize tamano, QRect const& libre);

/// Where a panel of `tamano` stands: beside the bar that holds the anchor, centred on it, never outside
/// `libre`, the part of `pantalla` that no bar takes. All in one coordinate system.
[[nodiscard]] QPoint colocar(QSize tamano, Ancla const& ancla, QRect const& pantalla, QRect const& libre);

/// Where it stands when nothing was clicked: centred, in the upper part.
[[nodiscard]] QPoint colocarSinAncla(QSize tamano, QRect const& libre);

}  // namespace zorve
