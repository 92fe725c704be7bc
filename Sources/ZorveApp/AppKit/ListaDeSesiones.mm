#import "ZorveApp/AppKit/ListaDeSesiones.h"

#include <string>
#include <utility>
#include <vector>

#import "ZorveApp/AppKit/FilaDeSesion.h"
#import "ZorveApp/AppKit/Pintura.h"
#include "ZorvePlatform/MacOS/Cadenas.h"

namespace Estilo = zorve::Estilo;
namespace Medidas = zorve::Medidas;

namespace {

NSUserInterfaceItemIdentifier const identificadorDeFila = @"fila";
NSUserInterfaceItemIdentifier const identificadorDeFondo = @"fondo";

std::vector<std::string> idsDe(zorve::PanelView const& panel) {
  std::vector<std::string> ids;
  ids.reserve(panel.cantidadDeFilas());
  for (std::size_t i = 0; i < panel.cantidadDeFilas(); ++i) ids.push_back(panel.idDeFila(i));
  return ids;
}

NSTableView* tablaSinAdornos() {
  NSTableView* const tabla = [[NSTableView alloc] initWithFrame:NSZeroRect];
  NSTableColumn* const columna = [[NSTableColumn alloc] initWithIdentifier:identificadorDeFila];
  columna.resizingMask = NSTableColumnAutoresizingMask;
  [tabla addTableColumn:columna];
  tabla.headerView = nil;
  tabla.rowHeight = Medidas::altoDeFila;
  tabla.intercellSpacing = NSZeroSize;
  tabla.backgroundColor = NSColor.clearColor;
  tabla.style = NSTableViewStylePlain;
  tabla.refusesFirstResponder = YES;
  tabla.focusRingType = NSFocusRingTypeNone;
  tabla.columnAutoresizingStyle = NSTableViewLastColumnOnlyAutoresizingStyle;
  return tabla;
}

}  // namespace

@implementation ListaDeSesiones {
  zorve::PanelView* _panel;
  NSTableView* _tabla;
  NSScrollView* _desplazable;
  NSTextField* _marcador;
  std::vector<std::string> _ids;
  std::string _elegida;
  NSMenu* _menu;
  std::string _idDelMenu;
}

- (instancetype)initConPanel:(zorve::PanelView&)panel {
  if ((self = [super initWithFrame:NSZeroRect])) {
    _panel = &panel;
    _tabla = tablaSinAdornos();
    _tabla.dataSource = self;
    _tabla.delegate = self;
    _tabla.target = self;
    _tabla.action = @selector(clicEnLaTabla:);
    _menu = [[NSMenu alloc] init];
    _menu.delegate = static_cast<id>(self);
    _tabla.menu = _menu;
    _desplazable = [[NSScrollView alloc] initWithFrame:NSZeroRect];
    _desplazable.documentView = _tabla;
    _desplazable.drawsBackground = NO;
    _desplazable.hasVerticalScroller = YES;
    _marcador = zorve::rotulo([NSFont systemFontOfSize:13], Estilo::textoTenue);
    zorve::llenar(_desplazable, self);
    zorve::colgar(_marcador, self);
    [NSLayoutConstraint activateConstraints:@[
      [_marcador.centerXAnchor constraintEqualToAnchor:self.centerXAnchor],
      [_marcador.centerYAnchor constraintEqualToAnchor:self.centerYAnchor],
    ]];
  }
  return self;
}

- (void)actualizar {
  auto const marcador = _panel->marcador();
  _marcador.stringValue = zorve::cadena(marcador.value_or(""));
  _desplazable.hidden = marcador ? YES : NO;
  auto ids = idsDe(*_panel);
  bool const lasMismas = ids == _ids;
  _ids = std::move(ids);
  if (!lasMismas) [_tabla reloadData];
  [self mostrarSeleccion];
  [self mostrarFilas];
}

/// Another session selected comes into sight; the same one in another row stays where the person scrolled.
- (void)mostrarSeleccion {
  auto const fila = _panel->filaSeleccionada();
  auto elegida = fila ? _ids.at(*fila) : std::string{};
  bool const esOtra = elegida != _elegida;
  _elegida = std::move(elegida);
  if (!fila) {
    [_tabla selectRowIndexes:[NSIndexSet indexSet] byExtendingSelection:NO];
    return;
  }
  auto const posicion = static_cast<NSInteger>(*fila);
  if (_tabla.selectedRow != posicion) {
    [_tabla selectRowIndexes:[NSIndexSet indexSetWithIndex:*fila] byExtendingSelection:NO];
  }
  if (esOtra) [_tabla scrollRowToVisible:posicion];
}

/// The rows that exist, in place: assistive software keeps its own.
- (void)mostrarFilas {
  __weak ListaDeSesiones* const debil = self;
  [_tabla enumerateAvailableRowViewsUsingBlock:^(NSTableRowView* fondo, NSInteger fila) {
    [debil mostrarFila:fila en:fondo];
  }];
}

- (void)mostrarFila:(NSInteger)fila en:(NSTableRowView*)fondo {
  if (![self vigente:fila]) return;
  if ([fondo isKindOfClass:FondoDeFila.class]) {
    static_cast<FondoDeFila*>(fondo).conLinea = [self conLinea:fila];
  }
  NSView* const celda = [fondo viewAtColumn:0];
  if ([celda isKindOfClass:FilaDeSesion.class]) {
    [static_cast<FilaDeSesion*>(celda) mostrar:_panel->fila(static_cast<std::size_t>(fila))];
  }
}

- (BOOL)conLinea:(NSInteger)fila {
  NSInteger const elegida = _tabla.selectedRow;
  return fila != elegida && fila + 1 != elegida && static_cast<std::size_t>(fila) + 1 < _ids.size();
}

/// The table asks between a change of the model and the update that follows it.
- (BOOL)vigente:(NSInteger)fila {
  auto const posicion = static_cast<std::size_t>(fila);
  return fila >= 0 && posicion < _ids.size() && posicion < _panel->cantidadDeFilas() &&
         _panel->idDeFila(posicion) == _ids[posicion];
}

- (void)abrirFila:(NSInteger)fila {
  if (![self vigente:fila]) return;
  _panel->clicEnFila(static_cast<std::size_t>(fila));
}

- (void)clicEnLaTabla:(nullable id)quien {
  [self abrirFila:_tabla.clickedRow];
}

/// A secondary click: the table says which row is under it.
- (void)menuNeedsUpdate:(NSMenu*)menu {
  [self llenarMenuDe:_tabla.clickedRow];
}

- (void)llenarMenuDe:(NSInteger)fila {
  [_menu removeAllItems];
  if (![self vigente:fila]) return;
  auto const posicion = static_cast<std::size_t>(fila);
  _idDelMenu = _ids[posicion];
  for (auto const& [clase, titulo] : _panel->abrirMenuDeFila(posicion)) {
    NSMenuItem* const entrada = [[NSMenuItem alloc] initWithTitle:zorve::cadena(titulo)
                                                           action:@selector(elegirDelMenu:)
                                                    keyEquivalent:@""];
    entrada.target = self;
    entrada.tag = static_cast<NSInteger>(clase);
    [_menu addItem:entrada];
  }
}

- (void)elegirDelMenu:(NSMenuItem*)entrada {
  _panel->elegirEnElMenu(_idDelMenu, static_cast<zorve::EntradaDelMenuDeFila::Clase>(entrada.tag));
}

- (void)abrirMenuDe:(FilaDeSesion*)celda {
  [self llenarMenuDe:[_tabla rowForView:celda]];
  _menu.delegate = nil;
  [_menu popUpMenuPositioningItem:nil atLocation:NSMakePoint(Medidas::xDeTitulo, 0) inView:celda];
  _menu.delegate = static_cast<id>(self);
}

- (NSInteger)numberOfRowsInTableView:(NSTableView*)tabla {
  return static_cast<NSInteger>(_ids.size());
}

- (nullable NSView*)tableView:(NSTableView*)tabla
           viewForTableColumn:(nullable NSTableColumn*)columna
                          row:(NSInteger)fila {
  FilaDeSesion* celda = [tabla makeViewWithIdentifier:identificadorDeFila owner:self];
  if (celda == nil) {
    celda = [[FilaDeSesion alloc] initWithFrame:NSZeroRect];
    celda.identifier = identificadorDeFila;
    __weak ListaDeSesiones* const debil = self;
    __weak NSTableView* const suTabla = tabla;
    celda.alPedirMenu = ^(FilaDeSesion* cual) {
      [debil abrirMenuDe:cual];
    };
    celda.alPulsar = ^(FilaDeSesion* cual) {
      NSTableView* const entera = suTabla;
      if (entera != nil) [debil abrirFila:[entera rowForView:cual]];
    };
  }
  if ([self vigente:fila]) [celda mostrar:_panel->fila(static_cast<std::size_t>(fila))];
  return celda;
}

- (nullable NSTableRowView*)tableView:(NSTableView*)tabla rowViewForRow:(NSInteger)fila {
  FondoDeFila* fondo = [tabla makeViewWithIdentifier:identificadorDeFondo owner:self];
  if (fondo == nil) {
    fondo = [[FondoDeFila alloc] initWithFrame:NSZeroRect];
    fondo.identifier = identificadorDeFondo;
  }
  fondo.conLinea = [self conLinea:fila];
  return fondo;
}

/// The model alone selects.
- (BOOL)selectionShouldChangeInTableView:(NSTableView*)tabla {
  return NO;
}

@end
