#pragma once

#import <AppKit/AppKit.h>

NS_ASSUME_NONNULL_BEGIN

/// A key's cap with its symbol.
@interface TeclaDibujada : NSView
@property(nonatomic, copy) NSString* texto;
@end

NS_ASSUME_NONNULL_END
