#pragma once

#import <AppKit/AppKit.h>

#include "ZorveApp/VistaAjustes.h"

NS_ASSUME_NONNULL_BEGIN

/// The settings' right side: the failure band, when there is one, over the chosen section's content. It
/// scrolls and never shows scrollers.
@interface ContenidoDeSeccion : NSScrollView
/// Both outlive the view.
- (instancetype)initConValores:(zorve::VistaAjustes&)valores modelo:(zorve::ModeloDeAjustes&)modelo;
- (void)actualizar;
@end

NS_ASSUME_NONNULL_END
