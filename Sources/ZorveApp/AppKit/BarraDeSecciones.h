#pragma once

#import <AppKit/AppKit.h>

#include "ZorveApp/VistaAjustes.h"

NS_ASSUME_NONNULL_BEGIN

/// The settings' sidebar: one button a section.
@interface BarraDeSecciones : NSView
/// `valores` outlives the view.
- (instancetype)initConValores:(zorve::VistaAjustes&)valores;
- (void)actualizar;
@end

NS_ASSUME_NONNULL_END
