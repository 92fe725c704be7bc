#pragma once

#import <AppKit/AppKit.h>

#include "ZorveApp/PanelView.h"

NS_ASSUME_NONNULL_BEGIN

/// The rows, made as they come into sight, or the words that stand in their place. It never takes the
/// keyboard.
@interface ListaDeSesiones : NSView <NSTableViewDataSource, NSTableViewDelegate>
/// `panel` outlives the view.
- (instancetype)initConPanel:(zorve::PanelView&)panel;
/// Shows the panel's values as they are now and keeps the selected row in sight.
- (void)actualizar;
@end

NS_ASSUME_NONNULL_END
