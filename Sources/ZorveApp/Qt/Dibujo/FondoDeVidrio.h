#pragma once

#include <QImage>

namespace zorve {

/// The glass as a strip of `alto` device pixels, to be repeated sideways: what is behind a dark blur at
/// opacity `densidad`, the tint, the light from the top edge. Its shades are dithered, since over this height
/// each of the display's own would be a band that the eye can see.
[[nodiscard]] QImage fondoDeVidrio(int alto, double densidad);

}  // namespace zorve
