#import "ZorveApp/AppKit/BandaDeAvisos.h"

#include <algorithm>

#import "ZorveApp/AppKit/Pintura.h"
#import "ZorveApp/AppKit/TarjetaDeAviso.h"

namespace Medidas = zorve::Medidas;

namespace {

constexpr CGFloat altoMaximo = 200;
constexpr CGFloat entreTarjetas = 6;

}  // namespace

/// A column that begins at the top.
@interface ColumnaDeAvisos : NSStackView
@end

@implementation ColumnaDeAvisos

- (BOOL)isFlipped {
  return YES;
}

@end

@implementation BandaDeAvisos {
  ColumnaDeAvisos* _columna;
  NSLayoutConstraint* _alto;
  std::vector<zorve::LineaDeBanda> _lineas;
}

- (instancetype)initWithFrame:(NSRect)marco {
  if ((self = [super initWithFrame:marco])) {
    _columna = [[ColumnaDeAvisos alloc] initWithFrame:NSZeroRect];
    _columna.orientation = NSUserInterfaceLayoutOrientationVertical;
    _columna.alignment = NSLayoutAttributeLeading;
    _columna.spacing = entreTarjetas;
    _columna.translatesAutoresizingMaskIntoConstraints = NO;
    self.drawsBackground = NO;
    self.scrollerStyle = NSScrollerStyleOverlay;
    self.documentView = _columna;
    self.verticalScrollElasticity = NSScrollElasticityNone;
    _alto = [self.heightAnchor constraintEqualToConstant:0];
    [NSLayoutConstraint activateConstraints:@[
      _alto,
      [_columna.topAnchor constraintEqualToAnchor:self.contentView.topAnchor],
      [_columna.leadingAnchor constraintEqualToAnchor:self.contentView.leadingAnchor],
      [_columna.trailingAnchor constraintEqualToAnchor:self.contentView.trailingAnchor],
    ]];
  }
  return self;
}

- (void)mostrar:(std::vector<zorve::LineaDeBanda> const&)lineas {
  if (lineas == _lineas) return;
  _lineas = lineas;
  NSMutableArray<NSView*>* const tarjetas = [NSMutableArray array];
  for (auto const& linea : lineas) {
    [tarjetas
        addObject:[[TarjetaDeAviso alloc] initConLinea:linea
                                                 ancho:Medidas::panel.ancho - 2 * Medidas::margenDeBanda]];
  }
  _columna.edgeInsets = NSEdgeInsetsMake(lineas.empty() ? 0 : Medidas::margenDeBanda, Medidas::margenDeBanda,
                                         0, Medidas::margenDeBanda);
  [_columna setViews:tarjetas inGravity:NSStackViewGravityTop];
  CGFloat const entero = lineas.empty() ? 0 : _columna.fittingSize.height;
  _alto.constant = std::min(entero, altoMaximo);
  self.hasVerticalScroller = entero > altoMaximo ? YES : NO;
}

@end
