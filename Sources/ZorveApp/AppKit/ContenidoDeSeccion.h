#pragma once

#import <AppKit/AppKit.h>

#include "ZorveApp/VistaAjustes.h"

NS_ASSUME_NONNULL_BEGIN

/// The settings' right side: the failure band, when there is one, over the chosen section's content. It
/// scrolls and never shows scrollers.
@interface ContenidoDeSeccion : NSScrollView
/// `valores` outlives the view.
- (instancetype)initConValores:(zorve::VistaAjustes&)valores;
- (void)actualizar;
@end

NS_ASSUME_NONNULL_END
