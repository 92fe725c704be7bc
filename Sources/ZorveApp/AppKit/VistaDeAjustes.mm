#import "ZorveApp/AppKit/VistaDeAjustes.h"

#include <vector>

#import "ZorveApp/AppKit/BarraDeSecciones.h"
#import "ZorveApp/AppKit/ContenidoDeSeccion.h"
#import "ZorveApp/AppKit/Pintura.h"
#import "ZorveApp/AppKit/VidrioDeFondo.h"

namespace Medidas = zorve::Medidas;

@implementation VistaDeAjustes {
  VidrioDeFondo* _vidrio;
  BarraDeSecciones* _secciones;
  ContenidoDeSeccion* _contenido;
  std::vector<zorve::Suscripcion> _suscripciones;
  BOOL _pedida;
}

- (instancetype)initConValores:(zorve::VistaAjustes&)valores {
  if ((self = [super initWithFrame:NSZeroRect])) {
    _vidrio = [[VidrioDeFondo alloc] initWithFrame:NSZeroRect];
    _secciones = [[BarraDeSecciones alloc] initConValores:valores];
    _contenido = [[ContenidoDeSeccion alloc] initConValores:valores];
    zorve::llenar(_vidrio, self);
    zorve::colgar(_secciones, self);
    zorve::colgar(_contenido, self);
    [self colocar];
    __weak VistaDeAjustes* const debil = self;
    _suscripciones = valores.observar([debil] { [debil pedirActualizacion]; });
  }
  return self;
}

- (void)colocar {
  [NSLayoutConstraint activateConstraints:@[
    [_secciones.widthAnchor constraintEqualToConstant:Medidas::anchoDeBarraLateral],
    [_secciones.topAnchor constraintEqualToAnchor:self.topAnchor],
    [_secciones.bottomAnchor constraintEqualToAnchor:self.bottomAnchor],
    [_secciones.leadingAnchor constraintEqualToAnchor:self.leadingAnchor],
    [_contenido.topAnchor constraintEqualToAnchor:self.topAnchor],
    [_contenido.bottomAnchor constraintEqualToAnchor:self.bottomAnchor],
    [_contenido.leadingAnchor constraintEqualToAnchor:_secciones.trailingAnchor],
    [_contenido.trailingAnchor constraintEqualToAnchor:self.trailingAnchor],
  ]];
}

/// However many properties change in one turn of the main queue, the views are brought up to date once.
- (void)pedirActualizacion {
  if (_pedida) return;
  _pedida = YES;
  __weak VistaDeAjustes* const debil = self;
  dispatch_async(dispatch_get_main_queue(), ^{
    [debil actualizar];
  });
}

- (void)actualizar {
  _pedida = NO;
  [_secciones actualizar];
  [_contenido actualizar];
}

- (void)reactivar {
  [_vidrio reactivar];
}

@end
