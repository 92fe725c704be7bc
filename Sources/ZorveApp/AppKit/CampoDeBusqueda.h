#pragma once

#import <AppKit/AppKit.h>

NS_ASSUME_NONNULL_BEGIN

/// The panel's top band: a lens, a plain text field, a line under both.
@interface CampoDeBusqueda : NSView
@property(nonatomic, readonly) NSTextField* campo;
@end

NS_ASSUME_NONNULL_END
