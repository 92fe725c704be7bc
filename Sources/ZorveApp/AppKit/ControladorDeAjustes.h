#pragma once

#import <AppKit/AppKit.h>

#include "ZorveApp/VistaAjustes.h"

NS_ASSUME_NONNULL_BEGIN

/// Owns the settings window, made at its first showing and only hidden from then on.
@interface ControladorDeAjustes : NSObject <NSWindowDelegate>
/// `valores` outlives the controller, which installs its actions.
- (instancetype)initConValores:(zorve::VistaAjustes&)valores;
- (instancetype)init NS_UNAVAILABLE;
- (void)mostrar;
/// Called after the window closed, unless it shows again by then.
@property(nonatomic, copy, nullable) void (^alCerrar)(void);
@end

NS_ASSUME_NONNULL_END
