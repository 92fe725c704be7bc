#pragma once

#include <QKeyEvent>

#include "ZorveApp/Teclado.h"

namespace zorve {

/// The shortcut modifier of this desktop.
inline constexpr Modificador modificadorPrincipal = Modificador::control;

/// A key event in the program's own terms. The character of a shortcut is the Latin one where the keyboard's
/// layout has another.
[[nodiscard]] Pulsacion aPulsacion(QKeyEvent const& evento);

}  // namespace zorve
