#import "ZorveApp/AppKit/TeclaDibujada.h"

#import "ZorveApp/AppKit/Pintura.h"

namespace Estilo = zorve::Estilo;
namespace Medidas = zorve::Medidas;

@implementation TeclaDibujada {
  NSTextField* _rotulo;
}

- (instancetype)initWithFrame:(NSRect)marco {
  if ((self = [super initWithFrame:marco])) {
    _rotulo = zorve::rotulo([NSFont systemFontOfSize:Medidas::letraDelPie], Estilo::texto);
    zorve::colgar(_rotulo, self);
    [NSLayoutConstraint activateConstraints:@[
      [self.heightAnchor constraintEqualToConstant:17],
      [_rotulo.leadingAnchor constraintEqualToAnchor:self.leadingAnchor constant:4],
      [_rotulo.trailingAnchor constraintEqualToAnchor:self.trailingAnchor constant:-4],
      [_rotulo.centerYAnchor constraintEqualToAnchor:self.centerYAnchor],
    ]];
  }
  return self;
}

- (NSString*)texto {
  return _rotulo.stringValue;
}

- (void)setTexto:(NSString*)texto {
  _rotulo.stringValue = texto;
}

- (void)drawRect:(NSRect)sucio {
  zorve::tarjeta(self.bounds, Medidas::radioDeTecla, Estilo::fondoDeTecla, Estilo::fondoDeTecla);
}

@end
