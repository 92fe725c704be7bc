#import "ZorveApp/AppKit/FilaDeSesion.h"

#import "ZorveApp/AppKit/Pintura.h"
#import "ZorveApp/AppKit/PuntoDeEstado.h"
#include "ZorvePlatform/MacOS/Cadenas.h"

namespace Estilo = zorve::Estilo;
namespace Medidas = zorve::Medidas;

namespace {

constexpr CGFloat arriba = 10;
constexpr CGFloat entreColumnas = 12;

NSString* cadenaDe(std::optional<std::string> const& texto) { return texto ? zorve::cadena(*texto) : @""; }

/// " · working" beside the path; nothing for a finished session.
NSString* palabraDe(zorve::Fila const& fila) {
  return fila.palabraDeEstado ? [@" · " stringByAppendingString:zorve::cadena(*fila.palabraDeEstado)] : @"";
}

/// `texto` in `color`, what a search found of it in the accent colour.
NSAttributedString* marcado(std::string const& texto, std::vector<zorve::Tramo> const& marcas,
                            NSTextField* campo, zorve::Color const& color) {
  NSMutableParagraphStyle* const parrafo = [[NSMutableParagraphStyle alloc] init];
  parrafo.lineBreakMode = campo.lineBreakMode;
  NSDictionary<NSAttributedStringKey, id>* const como = @{
    NSFontAttributeName : campo.font,
    NSForegroundColorAttributeName : zorve::colorLegible(color),
    NSParagraphStyleAttributeName : parrafo,
  };
  NSMutableAttributedString* const todo =
      [[NSMutableAttributedString alloc] initWithString:zorve::cadena(texto) attributes:como];
  for (auto const& [desde, hasta] : marcas) {
    NSUInteger const principio = zorve::cadena(texto.substr(0, desde)).length;
    NSUInteger const largo = zorve::cadena(texto.substr(desde, hasta - desde)).length;
    if (principio + largo > todo.length) break;
    [todo addAttribute:NSForegroundColorAttributeName
                 value:zorve::colorDe(Estilo::acento)
                 range:NSMakeRange(principio, largo)];
  }
  return todo;
}

void escribir(NSTextField* campo, std::string const& texto, std::vector<zorve::Tramo> const& marcas,
              zorve::Color const& color) {
  if (marcas.empty()) {
    campo.stringValue = zorve::cadena(texto);
  } else {
    campo.attributedStringValue = marcado(texto, marcas, campo, color);
  }
}

NSString* paraVoz(zorve::Fila const& fila) {
  std::string texto = fila.titulo + ", " + fila.lineaDeRuta() + ", " + fila.tiempo;
  if (fila.conteo) texto += ", " + *fila.conteo;
  return zorve::cadena(texto);
}

void apretar(NSTextField* campo, NSLayoutPriority prioridad) {
  [campo setContentCompressionResistancePriority:prioridad
                                  forOrientation:NSLayoutConstraintOrientationHorizontal];
}

}  // namespace

@implementation FilaDeSesion {
  PuntoDeEstado* _punto;
  NSTextField* _titulo;
  NSTextField* _ruta;
  NSTextField* _palabra;
  NSTextField* _tiempo;
  NSTextField* _conteo;
}

- (instancetype)initWithFrame:(NSRect)marco {
  if ((self = [super initWithFrame:marco])) {
    NSFont* const fija = [NSFont monospacedSystemFontOfSize:Medidas::letraDeRuta weight:NSFontWeightRegular];
    NSFont* const cifras = [NSFont monospacedDigitSystemFontOfSize:Medidas::letraDerecha
                                                            weight:NSFontWeightRegular];
    _punto = [[PuntoDeEstado alloc] initWithFrame:NSZeroRect];
    _titulo = zorve::rotulo([NSFont systemFontOfSize:Medidas::letraDeTitulo weight:NSFontWeightMedium],
                            Estilo::textoAlto);
    _ruta = zorve::rotulo(fija, Estilo::textoTenue);
    _ruta.lineBreakMode = NSLineBreakByTruncatingMiddle;
    _palabra = zorve::rotulo(fija, Estilo::ember);
    _tiempo = zorve::rotulo(cifras, Estilo::textoTenue);
    _conteo = zorve::rotulo(cifras, Estilo::textoTenue);
    apretar(_titulo, NSLayoutPriorityDefaultLow);
    apretar(_ruta, NSLayoutPriorityDefaultLow);
    for (NSTextField* campo in @[ _palabra, _tiempo, _conteo ]) apretar(campo, NSLayoutPriorityRequired);
    for (NSView* vista in @[ _punto, _titulo, _ruta, _palabra, _tiempo, _conteo ]) {
      zorve::colgar(vista, self);
      vista.accessibilityElement = NO;
    }
    [self colocar];
    self.textField = _titulo;
    self.accessibilityElement = YES;
    self.accessibilityRole = NSAccessibilityButtonRole;
  }
  return self;
}

- (void)colocar {
  [NSLayoutConstraint activateConstraints:@[
    [_punto.centerXAnchor constraintEqualToAnchor:self.leadingAnchor constant:Medidas::xDeEstado],
    [_punto.centerYAnchor constraintEqualToAnchor:self.centerYAnchor],
    [_titulo.topAnchor constraintEqualToAnchor:self.topAnchor constant:arriba],
    [_titulo.leadingAnchor constraintEqualToAnchor:self.leadingAnchor constant:Medidas::xDeTitulo],
    [_titulo.trailingAnchor constraintLessThanOrEqualToAnchor:_tiempo.leadingAnchor constant:-entreColumnas],
    [_tiempo.trailingAnchor constraintEqualToAnchor:self.trailingAnchor constant:-Medidas::margenDerecho],
    [_tiempo.firstBaselineAnchor constraintEqualToAnchor:_titulo.firstBaselineAnchor],
    [_ruta.topAnchor constraintEqualToAnchor:_titulo.bottomAnchor constant:3],
    [_ruta.leadingAnchor constraintEqualToAnchor:_titulo.leadingAnchor],
    [_palabra.leadingAnchor constraintEqualToAnchor:_ruta.trailingAnchor],
    [_palabra.firstBaselineAnchor constraintEqualToAnchor:_ruta.firstBaselineAnchor],
    [_palabra.trailingAnchor constraintLessThanOrEqualToAnchor:_conteo.leadingAnchor constant:-entreColumnas],
    [_conteo.trailingAnchor constraintEqualToAnchor:_tiempo.trailingAnchor],
    [_conteo.firstBaselineAnchor constraintEqualToAnchor:_ruta.firstBaselineAnchor],
  ]];
}

- (void)mostrar:(zorve::Fila const&)fila {
  // Faint texts are stronger on the selection's card.
  zorve::Color const tenue = fila.seleccionada ? Estilo::texto : Estilo::textoTenue;
  for (NSTextField* campo in @[ _ruta, _tiempo, _conteo ]) campo.textColor = zorve::colorLegible(tenue);
  _punto.estado = fila.estado;
  escribir(_titulo, fila.titulo, fila.marcasDeTitulo, Estilo::textoAlto);
  _titulo.toolTip = fila.ayuda ? zorve::cadena(*fila.ayuda) : nil;
  escribir(_ruta, fila.ruta, fila.marcasDeRuta, tenue);
  _palabra.stringValue = palabraDe(fila);
  _tiempo.stringValue = zorve::cadena(fila.tiempo);
  _conteo.stringValue = cadenaDe(fila.conteo);
  self.accessibilityLabel = paraVoz(fila);
  self.accessibilityHelp = fila.ayuda ? zorve::cadena(*fila.ayuda) : nil;
  self.accessibilitySelected = fila.seleccionada ? YES : NO;
}

- (BOOL)accessibilityPerformPress {
  if (self.alPulsar == nil) return NO;
  self.alPulsar(self);
  return YES;
}

- (BOOL)accessibilityPerformShowMenu {
  if (self.alPedirMenu == nil) return NO;
  self.alPedirMenu(self);
  return YES;
}

@end

@implementation FondoDeFila

- (void)setConLinea:(BOOL)conLinea {
  if (_conLinea == conLinea) return;
  _conLinea = conLinea;
  self.needsDisplay = YES;
}

- (void)drawBackgroundInRect:(NSRect)sucio {
  if (!self.conLinea) return;
  NSRect const marco = self.bounds;
  [zorve::colorLegible(Estilo::lineaFila) setFill];
  NSRectFillUsingOperation(NSMakeRect(Medidas::xDeTitulo, NSMaxY(marco) - 1,
                                      NSWidth(marco) - Medidas::xDeTitulo - Medidas::margenDerecho, 1),
                           NSCompositingOperationSourceOver);
}

- (void)drawSelectionInRect:(NSRect)sucio {
  zorve::tarjeta(NSInsetRect(self.bounds, Medidas::sangriaDeSeleccion, 0), Medidas::radioDeSeleccion,
                 Estilo::filaSeleccionada, Estilo::contornoDeFila);
}

- (BOOL)isEmphasized {
  return YES;
}

@end
