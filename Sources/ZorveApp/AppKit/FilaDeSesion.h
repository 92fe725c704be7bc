#pragma once

#import <AppKit/AppKit.h>

#include "ZorveApp/PanelView.h"

NS_ASSUME_NONNULL_BEGIN

/// One row's content: the status mark, the title over the path, the time over the count.
@interface FilaDeSesion : NSTableCellView
/// Called when assistive software presses the row.
@property(nonatomic, copy, nullable) void (^alPulsar)(FilaDeSesion* fila);
/// Called when assistive software asks for the row's menu.
@property(nonatomic, copy, nullable) void (^alPedirMenu)(FilaDeSesion* fila);
- (void)mostrar:(zorve::Fila const&)fila;
@end

/// What lies behind a row: the selection's card, or the line under it.
@interface FondoDeFila : NSTableRowView
/// No line beside the selected row.
@property(nonatomic) BOOL conLinea;
@end

NS_ASSUME_NONNULL_END
