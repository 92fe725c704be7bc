#pragma once

#import <AppKit/AppKit.h>

NS_ASSUME_NONNULL_BEGIN

namespace zorve::MarcaDeBarra {

/// The status item's image: the mark as a template of 18 by 18 points. Main thread only.
[[nodiscard]] NSImage* imagen();

}  // namespace zorve::MarcaDeBarra

/// The mark in the accent colour, as large as its view.
@interface VistaDeMarca : NSView
@end

NS_ASSUME_NONNULL_END
