#pragma once

#include <QWindow>

namespace zorve {

/// Makes `ventana` of this size, which nobody can change.
inline void fijarTamano(QWindow& ventana, QSize tamano) {
  ventana.setMinimumSize(tamano);
  ventana.setMaximumSize(tamano);
  ventana.resize(tamano);
}

}  // namespace zorve
