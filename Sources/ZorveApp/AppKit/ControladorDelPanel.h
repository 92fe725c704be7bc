#pragma once

#import <AppKit/AppKit.h>

#include "ZorveApp/PanelView.h"

NS_ASSUME_NONNULL_BEGIN

/// The popover's content: draws the panel's values and hands keys and clicks to it.
@interface ControladorDelPanel : NSViewController <NSTextFieldDelegate>
/// All outlive the controller. It installs the panel's actions.
- (instancetype)initConPanel:(zorve::PanelView&)panel
                      modelo:(zorve::ModeloDeVista&)modelo
                      idioma:(zorve::PreferenciaDeIdioma const&)idioma;
@end

NS_ASSUME_NONNULL_END
