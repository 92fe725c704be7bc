#pragma once

#import <AppKit/AppKit.h>

#include "ZorveApp/VistaAjustes.h"

NS_ASSUME_NONNULL_BEGIN

/// The settings window's content: the sections on the left, the chosen one's content on the right.
@interface VistaDeAjustes : NSView
/// `valores` outlives the view.
- (instancetype)initConValores:(zorve::VistaAjustes&)valores;
/// Shows the values as they are now.
- (void)actualizar;
/// The window came to the front or went back: the glass stays active.
- (void)reactivar;
@end

NS_ASSUME_NONNULL_END
