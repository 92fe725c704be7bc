#pragma once

#import <AppKit/AppKit.h>

#include <vector>

#include "ZorveApp/PanelView.h"

NS_ASSUME_NONNULL_BEGIN

/// Lines in rounded cards, wrapped and never cut, one under the other; no height without lines. Past 200
/// points it scrolls.
@interface BandaDeAvisos : NSScrollView
- (void)mostrar:(std::vector<zorve::LineaDeBanda> const&)lineas;
@end

NS_ASSUME_NONNULL_END
