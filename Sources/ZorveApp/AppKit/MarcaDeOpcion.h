#pragma once

#import <AppKit/AppKit.h>

NS_ASSUME_NONNULL_BEGIN

/// An option's mark: a ring with a dot, or a square with a tick.
@interface MarcaDeOpcion : NSView
@property(nonatomic) BOOL cuadro;
@property(nonatomic) BOOL marcada;
@end

NS_ASSUME_NONNULL_END
