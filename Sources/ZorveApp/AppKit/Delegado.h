#pragma once

#import <AppKit/AppKit.h>

#include "ZorveApp/EstadoDelPanel.h"
#include "ZorveApp/ItemDeEstado.h"
#include "ZorveApp/PanelView.h"
#include "ZorveApp/VistaAjustes.h"

NS_ASSUME_NONNULL_BEGIN

namespace zorve {

/// What the delegate works with. Everything referenced outlives the application's event loop.
struct ColaboradoresDelDelegado {
  PanelView& panel;
  VistaAjustes& ajustes;
  EstadoDelPanel& estado;
  PreferenciaDeIdioma const& idioma;
  Despachador& despachador;
  PrimerArranque primerArranque;
};

}  // namespace zorve

/// The application's delegate: the status item, the popover under it, its menu, the settings window. The
/// rules (which click does what, when the panel shows by itself) are ItemDeEstado's.
@interface Delegado : NSObject <NSApplicationDelegate, NSPopoverDelegate>
- (instancetype)initCon:(zorve::ColaboradoresDelDelegado const&)con;
- (instancetype)init NS_UNAVAILABLE;

- (BOOL)panelVisible;
- (void)mostrar;
- (void)cerrarPanel;
- (void)mostrarMenu:(std::array<zorve::EntradaDelMenu, 3> const&)entradas;
- (void)mostrarAjustes;
@end

NS_ASSUME_NONNULL_END
