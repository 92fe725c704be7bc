#pragma once

#import <AppKit/AppKit.h>

#include "ZorveApp/Teclado.h"

namespace zorve {

/// A key press in the terms of the portable tables. `evento` is a key-down event. Caps lock, the keypad and
/// Fn count as no modifiers of arrows, Return and Escape; beside a character they are `Modificador::otro`.
[[nodiscard]] Pulsacion pulsacionDe(NSEvent* _Nonnull evento);

}  // namespace zorve
