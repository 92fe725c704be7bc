#pragma once

#import <AppKit/AppKit.h>

#include <optional>

#include "ZorveApp/Teclado.h"

namespace zorve {

/// A key press in the terms of the portable tables. `evento` is a key-down event. Caps lock, the keypad and
/// Fn count as no modifiers of arrows, Return and Escape; beside a character they are `Modificador::otro`.
/// With Command held, a keyboard without Latin letters gives the letter that its shortcuts have.
[[nodiscard]] Pulsacion pulsacionDe(NSEvent* _Nonnull evento);

/// The key that an order to a text field stands for, where the panel knows it.
[[nodiscard]] std::optional<Pulsacion> pulsacionDeOrden(SEL _Nonnull orden);

}  // namespace zorve
