#import "ZorveApp/AppKit/ContenidoDeSeccion.h"

#import "ZorveApp/AppKit/FilaDeOpcion.h"
#import "ZorveApp/AppKit/MarcaDeBarra.h"
#import "ZorveApp/AppKit/Pintura.h"
#import "ZorveApp/AppKit/TarjetaDeAviso.h"
#include "ZorvePlatform/MacOS/Cadenas.h"

namespace Estilo = zorve::Estilo;
namespace Medidas = zorve::Medidas;

namespace {

constexpr CGFloat margen = 24;
constexpr CGFloat arriba = 36;
constexpr CGFloat entreFilas = 8;
constexpr CGFloat entreGrupos = 20;
constexpr CGFloat ladoDeLaMarca = 56;
constexpr CGFloat ancho = Medidas::ajustes.ancho - Medidas::anchoDeBarraLateral - 2 * margen;

NSTextField* rotuloDe(std::string_view texto, NSFont* letra, zorve::Color const& color) {
  NSTextField* const campo = zorve::rotulo(letra, color);
  campo.stringValue = zorve::cadena(texto);
  return campo;
}

NSFont* letraDeGrupo() { return [NSFont systemFontOfSize:Medidas::letraDeRotulo weight:NSFontWeightMedium]; }

NSAttributedString* espaciado(std::string_view texto) {
  NSDictionary<NSAttributedStringKey, id>* const como = @{
    NSFontAttributeName : letraDeGrupo(),
    NSForegroundColorAttributeName : zorve::colorLegible(Estilo::textoTenue),
    NSKernAttributeName : @1.1,
  };
  return [[NSAttributedString alloc] initWithString:zorve::cadena(texto) attributes:como];
}

}  // namespace

/// A column that begins at the top.
@interface ColumnaDeAjustes : NSStackView
@end

@implementation ColumnaDeAjustes

- (BOOL)isFlipped {
  return YES;
}

@end

@implementation ContenidoDeSeccion {
  zorve::VistaAjustes* _valores;
  ColumnaDeAjustes* _columna;
  /// Rows and captions are kept from one drawing to the next: the keyboard's focus stays where it is.
  NSMutableArray<FilaDeOpcion*>* _opciones;
  NSMutableArray<NSTextField*>* _rotulos;
  /// The last view of each group.
  NSMutableSet<NSView*>* _ultimas;
  NSUInteger _opcionesUsadas;
  NSUInteger _rotulosUsados;
}

- (instancetype)initConValores:(zorve::VistaAjustes&)valores {
  if ((self = [super initWithFrame:NSZeroRect])) {
    _valores = &valores;
    _opciones = [NSMutableArray array];
    _rotulos = [NSMutableArray array];
    _ultimas = [NSMutableSet set];
    _columna = [[ColumnaDeAjustes alloc] initWithFrame:NSZeroRect];
    _columna.orientation = NSUserInterfaceLayoutOrientationVertical;
    _columna.alignment = NSLayoutAttributeLeading;
    _columna.spacing = entreFilas;
    _columna.edgeInsets = NSEdgeInsetsMake(arriba, margen, margen, margen);
    _columna.translatesAutoresizingMaskIntoConstraints = NO;
    self.drawsBackground = NO;
    self.automaticallyAdjustsContentInsets = NO;
    self.documentView = _columna;
    [NSLayoutConstraint activateConstraints:@[
      [_columna.topAnchor constraintEqualToAnchor:self.contentView.topAnchor],
      [_columna.leadingAnchor constraintEqualToAnchor:self.contentView.leadingAnchor],
      [_columna.trailingAnchor constraintEqualToAnchor:self.contentView.trailingAnchor],
    ]];
  }
  return self;
}

- (void)actualizar {
  _opcionesUsadas = 0;
  _rotulosUsados = 0;
  [_ultimas removeAllObjects];
  NSMutableArray<NSView*>* const vistas = [NSMutableArray array];
  if (auto const banda = _valores->banda()) {
    [vistas addObject:[[TarjetaDeAviso alloc] initConLinea:{zorve::LineaDeBanda::Clase::error, *banda}
                                                     ancho:ancho]];
  }
  switch (_valores->seccion()) {
    case zorve::SeccionDeAjustes::general:
      [self poner:_valores->general() en:vistas];
      break;
    case zorve::SeccionDeAjustes::terminal:
      [self poner:_valores->terminal() en:vistas];
      break;
    case zorve::SeccionDeAjustes::acercaDe:
      [self ponerAcercaDe:_valores->acercaDe() en:vistas];
      break;
  }
  if (![_columna.views isEqualToArray:vistas]) [_columna setViews:vistas inGravity:NSStackViewGravityTop];
  for (NSView* vista in vistas) {
    [_columna setCustomSpacing:[_ultimas containsObject:vista] ? entreGrupos : entreFilas afterView:vista];
  }
}

- (void)poner:(zorve::ContenidoDeAjustes const&)contenido en:(NSMutableArray<NSView*>*)vistas {
  if (!contenido.texto.empty()) {
    [vistas addObject:rotuloDe(contenido.texto, [NSFont systemFontOfSize:Medidas::letraDeOpcion],
                               Estilo::textoTenue)];
  }
  for (auto const& grupo : contenido.grupos) {
    if (grupo.opciones.empty()) continue;
    if (!grupo.titulo.empty()) [vistas addObject:[self rotuloCon:espaciado(grupo.titulo)]];
    for (auto const& opcion : grupo.opciones) {
      FilaDeOpcion* const fila = [self filaLibre];
      [fila mostrar:opcion];
      [vistas addObject:fila];
    }
    [_ultimas addObject:vistas.lastObject];
  }
}

- (void)ponerAcercaDe:(zorve::AcercaDe const&)acercaDe en:(NSMutableArray<NSView*>*)vistas {
  VistaDeMarca* const marca = [[VistaDeMarca alloc] initWithFrame:NSZeroRect];
  [NSLayoutConstraint activateConstraints:@[
    [marca.widthAnchor constraintEqualToConstant:ladoDeLaMarca],
    [marca.heightAnchor constraintEqualToConstant:ladoDeLaMarca],
  ]];
  [vistas addObject:marca];
  [vistas addObject:rotuloDe(acercaDe.nombreYVersion, [NSFont systemFontOfSize:15 weight:NSFontWeightMedium],
                             Estilo::textoAlto)];
  [vistas addObject:rotuloDe(acercaDe.paraCerrar, [NSFont systemFontOfSize:Medidas::letraDeNota],
                             Estilo::textoTenue)];
}

- (NSTextField*)rotuloCon:(NSAttributedString*)texto {
  if (_rotulosUsados == _rotulos.count) {
    [_rotulos addObject:zorve::rotulo(letraDeGrupo(), Estilo::textoTenue)];
  }
  NSTextField* const rotulo = _rotulos[_rotulosUsados++];
  rotulo.attributedStringValue = texto;
  return rotulo;
}

- (FilaDeOpcion*)filaLibre {
  if (_opcionesUsadas == _opciones.count) {
    FilaDeOpcion* const nueva = [[FilaDeOpcion alloc] initWithFrame:NSZeroRect];
    [nueva.widthAnchor constraintEqualToConstant:ancho].active = YES;
    [_opciones addObject:nueva];
  }
  return _opciones[_opcionesUsadas++];
}

@end
