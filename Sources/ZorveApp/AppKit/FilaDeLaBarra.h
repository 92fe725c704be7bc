#pragma once

#import <AppKit/AppKit.h>

#include "ZorveApp/VistaAjustes.h"

NS_ASSUME_NONNULL_BEGIN

/// One section's button in the sidebar: symbol and title.
@interface FilaDeLaBarra : NSButton
/// `simbolo` is the system symbol's name.
- (instancetype)initConSimbolo:(std::string_view)simbolo;
- (void)mostrar:(zorve::FilaDeSeccion const&)fila;
@end

NS_ASSUME_NONNULL_END
