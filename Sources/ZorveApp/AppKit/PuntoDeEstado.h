#pragma once

#import <AppKit/AppKit.h>

#include "ZorveCore/Modelo.h"

NS_ASSUME_NONNULL_BEGIN

/// The status mark: busy is filled and has a halo, idle is a ring, dead a faint ring.
@interface PuntoDeEstado : NSView
@property(nonatomic) zorve::LiveState estado;
@end

NS_ASSUME_NONNULL_END
