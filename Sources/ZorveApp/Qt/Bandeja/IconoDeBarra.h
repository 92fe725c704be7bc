#pragma once

#include <QColor>
#include <QIcon>

namespace zorve {

/// The mark as a tray icon, drawn in `color` at whatever size is asked for. Where the symbolic icon is
/// installed the icon carries its name too, so that a host that recolours symbolic icons does.
[[nodiscard]] QIcon iconoDeBarra(QColor const& color);

/// Light for a dark bar, dark for a light one.
[[nodiscard]] QColor tintaSobre(bool barraClara);

/// The application's own icon, as it is installed: the mark on its dark tile, at 16 to 256 pixels.
[[nodiscard]] QIcon iconoDeLaAplicacion();

}  // namespace zorve
