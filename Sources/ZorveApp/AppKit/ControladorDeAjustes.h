#pragma once

#import <AppKit/AppKit.h>

#include "ZorveApp/VistaAjustes.h"

NS_ASSUME_NONNULL_BEGIN

/// Owns the settings window, made at its first showing and only hidden from then on.
@interface ControladorDeAjustes : NSObject <NSWindowDelegate>
/// Both outlive the controller.
- (instancetype)initConModelo:(zorve::ModeloDeAjustes&)modelo
                       idioma:(zorve::PreferenciaDeIdioma const&)idioma;
- (instancetype)init NS_UNAVAILABLE;
- (void)mostrar;
@end

NS_ASSUME_NONNULL_END
