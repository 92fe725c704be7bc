#pragma once

#import <AppKit/AppKit.h>

#include "ZorveApp/Teclado.h"

NS_ASSUME_NONNULL_BEGIN

/// A root view that offers key presses to a portable table: shortcuts before anyone else, other keys when
/// nobody below took them.
@interface RaizConTeclas : NSView
/// Gives whether the key was taken.
@property(nonatomic, copy, nullable) BOOL (^alPulsar)(zorve::Pulsacion const& pulsacion);
/// Gives whether the event was a key press that was taken.
- (BOOL)probar:(nullable NSEvent*)evento;
@end

NS_ASSUME_NONNULL_END
