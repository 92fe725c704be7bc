#pragma once

#import <AppKit/AppKit.h>

NS_ASSUME_NONNULL_BEGIN

/// Hosts the system's blur view, edge to edge, always dark: clear glass where the system has it, else the
/// material of its heads-up displays over what lies behind the window.
@interface VidrioDeZorve : NSView
/// Makes every blur view of this host active again.
- (void)reactivar;
@end

/// The glass layer, to lie behind everything: the blur, the tint, the light from the top edge. Where the
/// system asks for less transparency the tint is opaque.
@interface VidrioDeFondo : NSView
- (void)reactivar;
@end

NS_ASSUME_NONNULL_END
