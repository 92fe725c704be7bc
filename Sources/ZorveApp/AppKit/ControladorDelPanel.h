#pragma once

#import <AppKit/AppKit.h>

#include "ZorveApp/PanelView.h"

NS_ASSUME_NONNULL_BEGIN

/// The popover's content: draws the panel's values and hands keys and clicks to it.
@interface ControladorDelPanel : NSViewController <NSTextFieldDelegate>
/// `panel` outlives the controller.
- (instancetype)initConPanel:(zorve::PanelView&)panel;
@end

NS_ASSUME_NONNULL_END
