#pragma once

#import <AppKit/AppKit.h>

#include "ZorveApp/VistaAjustes.h"

NS_ASSUME_NONNULL_BEGIN

/// An option: a card with a round or square mark, a title and, under it, a note. The whole card is the
/// button.
@interface FilaDeOpcion : NSButton
- (void)mostrar:(zorve::Opcion const&)opcion;
@end

NS_ASSUME_NONNULL_END
