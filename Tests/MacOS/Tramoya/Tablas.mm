#include <algorithm>
#include <map>
#include <vector>

#import "MacOS/Tramoya/Interior.h"

// The table: rows that exist only while they are in sight, and are used again.

@implementation NSTableColumn {
  NSString* _identificador;
}
- (instancetype)initWithIdentifier:(NSString*)identificador {
  if ((self = [super init])) _identificador = identificador;
  return self;
}
@end

@implementation NSScrollView {
  NSView* _recorte;
  NSView* _documento;
}
- (NSView*)contentView {
  if (_recorte == nil) {
    _recorte = [[NSView alloc] initWithFrame:NSZeroRect];
    [self addSubview:_recorte];
    for (NSLayoutConstraint* una in @[
           [_recorte.topAnchor constraintEqualToAnchor:self.topAnchor],
           [_recorte.bottomAnchor constraintEqualToAnchor:self.bottomAnchor],
           [_recorte.leadingAnchor constraintEqualToAnchor:self.leadingAnchor],
           [_recorte.trailingAnchor constraintEqualToAnchor:self.trailingAnchor],
         ]) {
      una.active = YES;
    }
  }
  return _recorte;
}
- (NSView*)documentView {
  return _documento;
}
- (void)setDocumentView:(NSView*)vista {
  [_documento removeFromSuperview];
  _documento = vista;
  [self.contentView addSubview:vista];
}
@end

@implementation NSTableRowView {
  NSMutableArray* _celdas;
}
- (id)viewAtColumn:(NSInteger)columna {
  return self.subviews.firstObject;
}
- (void)drawBackgroundInRect:(NSRect)sucio {
}
- (void)drawSelectionInRect:(NSRect)sucio {
}
@end

@implementation NSTableCellView
@end

@implementation NSTableView {
  std::map<NSInteger, NSTableRowView*> _filas;
  std::map<std::string, NSMutableArray*> _sueltas;
  NSMutableArray* _columnas;
  NSInteger _cuantas;
  NSInteger _primera;
  NSInteger _elegida;
  NSInteger _pulsada;
  BOOL _sinContar;
}
- (instancetype)initWithFrame:(NSRect)marco {
  if ((self = [super initWithFrame:marco])) {
    _columnas = [NSMutableArray array];
    _elegida = -1;
    _pulsada = -1;
    _sinContar = YES;
  }
  return self;
}
- (void)addTableColumn:(NSTableColumn*)columna {
  [_columnas addObject:columna];
}
- (NSInteger)numberOfRows {
  if (_sinContar) _cuantas = [self.dataSource numberOfRowsInTableView:self];
  _sinContar = NO;
  return _cuantas;
}
- (void)reloadData {
  tramoya::anota("table reloads");
  _sinContar = YES;
  while (!_filas.empty()) [self soltar:_filas.begin()->first];
  if (_elegida >= [self numberOfRows]) _elegida = -1;
}
- (void)soltar:(NSInteger)fila {
  NSTableRowView* const fondo = _filas[fila];
  _filas.erase(fila);
  NSView* const celda = [fondo viewAtColumn:0];
  [fondo removeFromSuperview];
  [celda removeFromSuperview];
  for (NSView* vista in @[ fondo, celda ]) {
    auto& sitio = _sueltas[tramoya::utf8(vista.identifier)];
    if (sitio == nil) sitio = [NSMutableArray array];
    [sitio addObject:vista];
  }
}
- (id)makeViewWithIdentifier:(NSString*)identificador owner:(id)quien {
  NSMutableArray* const sueltas = _sueltas[tramoya::utf8(identificador)];
  NSView* const una = sueltas.lastObject;
  if (una != nil) [sueltas removeLastObject];
  return una;
}
/// As many as the scroll view's height holds, and one.
- (NSInteger)cuantasALaVista {
  return static_cast<NSInteger>(NSHeight(self.superview.bounds) / self.rowHeight) + 1;
}
- (void)acomodar {
  if ([self isHiddenOrHasHiddenAncestor]) return;
  NSInteger const hasta = std::min([self numberOfRows], _primera + [self cuantasALaVista]);
  std::vector<NSInteger> lejanas;
  for (auto const& [fila, vista] : _filas) {
    if (fila < _primera || fila >= hasta) lejanas.push_back(fila);
  }
  for (NSInteger const fila : lejanas) [self soltar:fila];
  for (NSInteger fila = _primera; fila < hasta; ++fila) {
    if (!_filas.contains(fila)) [self hacer:fila];
  }
}
- (void)hacer:(NSInteger)fila {
  NSTableRowView* const fondo = [(id)self.delegate tableView:self rowViewForRow:fila];
  NSView* const celda = [(id)self.delegate tableView:self viewForTableColumn:_columnas.firstObject row:fila];
  [fondo ponerMarco:NSMakeRect(0, static_cast<CGFloat>(fila) * self.rowHeight, 440, self.rowHeight)];
  [celda ponerMarco:NSMakeRect(0, 0, 440, self.rowHeight)];
  fondo.selected = fila == _elegida;
  [fondo addSubview:celda];
  [self addSubview:fondo];
  _filas[fila] = fondo;
}
- (NSInteger)selectedRow {
  return _elegida;
}
/// Documented: a selection by message does not ask the delegate; `deselectAll:` does.
- (void)selectRowIndexes:(NSIndexSet*)cuales byExtendingSelection:(BOOL)mas {
  NSInteger const nueva = cuales.count == 0 ? -1 : static_cast<NSInteger>(cuales.firstIndex);
  if (nueva >= [self numberOfRows]) {
    tramoya::faltas().push_back("a row is selected that the table does not have");
    return;
  }
  tramoya::anota("table selects " + std::to_string(nueva));
  _elegida = nueva;
  for (auto const& [fila, fondo] : _filas) fondo.selected = fila == _elegida;
}
- (void)deselectRow:(NSInteger)fila {
  if (fila == _elegida) [self selectRowIndexes:[NSIndexSet indexSet] byExtendingSelection:NO];
}
- (void)deselectAll:(id)quien {
  if ([self.delegate selectionShouldChangeInTableView:self]) [self deselectRow:_elegida];
}
- (void)scrollRowToVisible:(NSInteger)fila {
  tramoya::anota("table scrolls to " + std::to_string(fila));
  NSInteger const caben = [self cuantasALaVista] - 1;
  if (fila < _primera) _primera = fila;
  if (fila >= _primera + caben) _primera = fila - caben + 1;
}
- (void)desplazarA:(NSInteger)fila {
  _primera = fila;
  [self acomodar];
}
- (NSInteger)primeraALaVista {
  return _primera;
}
- (void)enumerateAvailableRowViewsUsingBlock:(void (^)(NSTableRowView*, NSInteger))con {
  auto const filas = _filas;
  for (auto const& [fila, fondo] : filas) con(fondo, fila);
}
- (NSInteger)rowForView:(NSView*)vista {
  for (auto const& [fila, fondo] : _filas) {
    if ([vista isDescendantOf:fondo]) return fila;
  }
  return -1;
}
- (NSTableRowView*)rowViewAtRow:(NSInteger)fila makeIfNecessary:(BOOL)hacer {
  auto const lugar = _filas.find(fila);
  return lugar == _filas.end() ? nil : lugar->second;
}
- (NSInteger)clickedRow {
  return _pulsada;
}
/// A press on a row: the delegate may refuse the selection, the action is sent all the same.
- (void)pulsarFila:(NSInteger)fila {
  if ([self.delegate selectionShouldChangeInTableView:self]) _elegida = fila;
  _pulsada = fila;
  [self sendAction:self.action to:self.target];
  _pulsada = -1;
}
- (void)pulsarDerechoEnFila:(NSInteger)fila {
  _pulsada = fila;
  [self.menu popUpMenuPositioningItem:nil atLocation:NSZeroPoint inView:self];
  _pulsada = -1;
}
@end
