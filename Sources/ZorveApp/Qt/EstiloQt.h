#pragma once

#include <QQmlEngine>
#include <QVariantMap>

namespace zorve {

/// The colours, sizes and fonts of `Estilo` and `Medidas` by their names, for QML's `estilo`. Type sizes are
/// in font points of the screen, so that the interface's points come out as pixels at scale 1.
[[nodiscard]] QVariantMap estiloParaQml(bool conMovimiento);

/// Makes the drawn types (Simbolo, Vidrio, Marca) known to QML as module Zorve.Dibujo. Once a program.
void registrarDibujos();

}  // namespace zorve
