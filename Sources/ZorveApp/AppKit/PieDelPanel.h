#pragma once

#import <AppKit/AppKit.h>

#include "ZorveApp/PanelView.h"

NS_ASSUME_NONNULL_BEGIN

/// The panel's bottom band: keys and what they do, the terminal in use, the settings button.
@interface PieDelPanel : NSView
/// `panel` outlives the view.
- (instancetype)initConPanel:(zorve::PanelView&)panel;
- (void)actualizar;
@end

NS_ASSUME_NONNULL_END
