#pragma once

#include <QColor>
#include <QRectF>
#include <QString>
#include <string>
#include <string_view>

#include "ZorveApp/Estilo.h"
#include "ZorveApp/Marca.h"

namespace zorve {

/// Bytes that are no UTF-8 become U+FFFD.
[[nodiscard]] inline QString aQString(std::string_view texto) {
  return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

[[nodiscard]] inline QColor aQColor(Color const& color) {
  return QColor::fromRgbF(static_cast<float>(color.rojo), static_cast<float>(color.verde),
                          static_cast<float>(color.azul), static_cast<float>(color.opacidad));
}

[[nodiscard]] inline QRectF aQRectF(Rectangulo const& marco) {
  return {marco.x, marco.y, marco.ancho, marco.alto};
}

}  // namespace zorve
