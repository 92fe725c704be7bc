#pragma once

#include <QQmlEngine>
#include <QVariantMap>

namespace zorve {

/// What the person asks of every program's windows.
struct GustosDePantalla {
  /// Strong colours, nothing translucent, square corners.
  bool altoContraste = false;
  bool conMovimiento = true;
  /// How much larger than usual texts are, and the windows with them.
  double escala = 1;
  bool operator==(GustosDePantalla const&) const = default;
};

/// The colours, sizes and fonts of `Estilo` and `Medidas` by their names, for QML's `estilo`. Type sizes are
/// in font points of the screen, so that the interface's points come out as pixels at scale 1.
[[nodiscard]] QVariantMap estiloParaQml(GustosDePantalla const& gustos);

/// Makes the drawn types (Simbolo, Vidrio, Marca) known to QML as module Zorve.Dibujo. Once a program.
void registrarDibujos();

}  // namespace zorve
