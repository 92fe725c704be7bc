#pragma once

#import <AppKit/AppKit.h>

#include "ZorveApp/PanelView.h"

NS_ASSUME_NONNULL_BEGIN

/// One message: a rounded card with a dot and wrapped text. `ancho` is the card's width in points.
@interface TarjetaDeAviso : NSView
- (instancetype)initConLinea:(zorve::LineaDeBanda const&)linea ancho:(CGFloat)ancho;
@end

NS_ASSUME_NONNULL_END
