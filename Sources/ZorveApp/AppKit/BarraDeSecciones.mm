#import "ZorveApp/AppKit/BarraDeSecciones.h"

#import "ZorveApp/AppKit/FilaDeLaBarra.h"
#import "ZorveApp/AppKit/Pintura.h"

namespace Estilo = zorve::Estilo;
namespace Medidas = zorve::Medidas;

namespace {

/// The window's own buttons stand above the first row.
constexpr CGFloat arriba = 52;
constexpr CGFloat margen = 10;
constexpr CGFloat entreFilas = 4;

}  // namespace

@implementation BarraDeSecciones {
  zorve::VistaAjustes* _valores;
  NSArray<FilaDeLaBarra*>* _filas;
}

- (instancetype)initConValores:(zorve::VistaAjustes&)valores {
  if ((self = [super initWithFrame:NSZeroRect])) {
    _valores = &valores;
    NSMutableArray<FilaDeLaBarra*>* const filas = [NSMutableArray array];
    NSLayoutYAxisAnchor* anterior = self.topAnchor;
    for (auto const& seccion : valores.secciones()) {
      FilaDeLaBarra* const fila = [[FilaDeLaBarra alloc] initConSimbolo:seccion.simbolo];
      fila.tag = static_cast<NSInteger>(seccion.seccion);
      fila.target = self;
      fila.action = @selector(elegir:);
      zorve::colgar(fila, self);
      [NSLayoutConstraint activateConstraints:@[
        [fila.topAnchor constraintEqualToAnchor:anterior constant:filas.count == 0 ? arriba : entreFilas],
        [fila.leadingAnchor constraintEqualToAnchor:self.leadingAnchor constant:margen],
        [fila.trailingAnchor constraintEqualToAnchor:self.trailingAnchor constant:-margen],
        [fila.heightAnchor constraintEqualToConstant:Medidas::altoDeSeccion],
      ]];
      anterior = fila.bottomAnchor;
      [filas addObject:fila];
    }
    _filas = filas;
  }
  return self;
}

- (void)actualizar {
  auto const secciones = _valores->secciones();
  for (std::size_t i = 0; i < secciones.size(); ++i) [_filas[i] mostrar:secciones[i]];
}

- (void)elegir:(NSButton*)fila {
  _valores->clicEnSeccion(static_cast<zorve::SeccionDeAjustes>(fila.tag));
}

- (void)drawRect:(NSRect)sucio {
  NSRect const marco = self.bounds;
  [zorve::colorDe(Estilo::fondoDeBarraLateral) setFill];
  NSRectFillUsingOperation(marco, NSCompositingOperationSourceOver);
  [zorve::colorLegible(Estilo::linea) setFill];
  NSRectFillUsingOperation(NSMakeRect(NSMaxX(marco) - 1, 0, 1, NSHeight(marco)),
                           NSCompositingOperationSourceOver);
}

@end
