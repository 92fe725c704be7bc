#pragma once

#import <AppKit/AppKit.h>

#include "ZorveApp/Teclado.h"

NS_ASSUME_NONNULL_BEGIN

/// The settings window: a window that offers key presses to a portable table before it looks at them itself.
@interface VentanaDeAjustes : NSWindow
/// `tabla` gives whether the key was taken.
- (void)alPulsar:(BOOL (^)(zorve::Pulsacion const& pulsacion))tabla;
@end

NS_ASSUME_NONNULL_END
