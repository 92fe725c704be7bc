#include <cmath>
#include <cstdio>

#import "MacOS/Tramoya/Interior.h"

// Colours, shapes and images: what a view draws becomes lines of text.

NSString* const NSAppearanceNameDarkAqua = @"NSAppearanceNameDarkAqua";
NSString* NSDeviceRGBColorSpace = @"NSDeviceRGBColorSpace";

namespace tramoya {

namespace {

std::vector<std::string>* trazos = nullptr;

void traza(std::string linea) {
  if (trazos != nullptr) trazos->push_back(std::move(linea));
}

std::string numeros(NSRect const& r) {
  char linea[96];
  std::snprintf(linea, sizeof linea, "%g %g %g %g", r.origin.x, r.origin.y, r.size.width, r.size.height);
  return linea;
}

void dibujarUna(NSView* vista) {
  if ([vista isHidden]) return;
  if ([vista isKindOfClass:NSTableRowView.class]) {
    auto* const fila = static_cast<NSTableRowView*>(vista);
    [fila drawBackgroundInRect:fila.bounds];
    if (fila.selected) [fila drawSelectionInRect:fila.bounds];
  }
  [vista drawRect:vista.bounds];
  for (NSView* hija in vista.subviews) dibujarUna(hija);
}

}  // namespace

std::vector<std::string> dibujar(NSView* raiz) {
  std::vector<std::string> salida;
  trazos = &salida;
  dibujarUna(raiz);
  trazos = nullptr;
  return salida;
}

}  // namespace tramoya

using tramoya::numeros;
using tramoya::traza;

void NSRectFillUsingOperation(NSRect rect, NSCompositingOperation como) {
  traza("fill rect " + numeros(rect));
}

@implementation NSColor {
  std::array<CGFloat, 4> _partes;
  NSColor* (^_segun)(NSAppearance*);
}
+ (NSColor*)colorWithSRGBRed:(CGFloat)rojo green:(CGFloat)verde blue:(CGFloat)azul alpha:(CGFloat)opacidad {
  NSColor* const nuevo = [[self alloc] init];
  nuevo->_partes = {rojo, verde, azul, opacidad};
  return nuevo;
}
+ (NSColor*)colorWithName:(NSString*)nombre dynamicProvider:(NSColor* (^)(NSAppearance*))segun {
  NSColor* const nuevo = [[self alloc] init];
  nuevo->_segun = [segun copy];
  return nuevo;
}
+ (NSColor*)clearColor {
  return [self colorWithSRGBRed:0 green:0 blue:0 alpha:0];
}
+ (NSColor*)blackColor {
  return [self colorWithSRGBRed:0 green:0 blue:0 alpha:1];
}
- (NSColor*)blendedColorWithFraction:(CGFloat)parte ofColor:(NSColor*)otro {
  auto const mezcla = [self, parte, otro](std::size_t i) {
    return self->_partes[i] * (1 - parte) + otro->_partes[i] * parte;
  };
  return [NSColor colorWithSRGBRed:mezcla(0) green:mezcla(1) blue:mezcla(2) alpha:mezcla(3)];
}
- (CGColorRef)CGColor {
  return (__bridge CGColorRef)self;
}
- (std::string)escrito {
  if (_segun != nil) return [_segun([NSAppearance appearanceNamed:NSAppearanceNameDarkAqua]) escrito];
  char linea[64];
  std::snprintf(linea, sizeof linea, "#%02lX%02lX%02lX %.3g", std::lround(_partes[0] * 255),
                std::lround(_partes[1] * 255), std::lround(_partes[2] * 255), _partes[3]);
  return linea;
}
- (void)setFill {
  traza("fill colour " + [self escrito]);
}
- (void)setStroke {
  traza("stroke colour " + [self escrito]);
}
- (void)set {
  [self setFill];
  [self setStroke];
}
@end

@implementation NSGradient {
  NSColor* _desde;
  NSColor* _hasta;
}
- (instancetype)initWithStartingColor:(NSColor*)desde endingColor:(NSColor*)hasta {
  if ((self = [super init])) {
    _desde = desde;
    _hasta = hasta;
  }
  return self;
}
- (void)drawInRect:(NSRect)rect angle:(CGFloat)angulo {
  traza("gradient " + [_desde escrito] + " to " + [_hasta escrito] + " in " + numeros(rect));
}
@end

@implementation NSBezierPath {
  std::string _forma;
  CGFloat _grosor;
}
+ (NSBezierPath*)de:(std::string)forma {
  NSBezierPath* const nueva = [[self alloc] init];
  nueva->_forma = std::move(forma);
  return nueva;
}
+ (NSBezierPath*)bezierPath {
  return [self de:"path"];
}
+ (NSBezierPath*)bezierPathWithOvalInRect:(NSRect)rect {
  return [self de:"oval " + numeros(rect)];
}
+ (NSBezierPath*)bezierPathWithRoundedRect:(NSRect)rect xRadius:(CGFloat)x yRadius:(CGFloat)y {
  return [self de:"card " + numeros(rect)];
}
- (void)moveToPoint:(NSPoint)punto {
  _forma += " move";
}
- (void)lineToPoint:(NSPoint)punto {
  _forma += " line";
}
- (void)closePath {
  _forma += " close";
}
- (CGFloat)lineWidth {
  return _grosor;
}
- (void)setLineWidth:(CGFloat)grosor {
  _grosor = grosor;
}
- (void)fill {
  traza("fill " + _forma);
}
- (void)stroke {
  traza("stroke " + _forma);
}
@end

@implementation NSFont {
  std::string _clase;
  CGFloat _puntos;
}
+ (NSFont*)clase:(std::string)clase puntos:(CGFloat)puntos {
  NSFont* const nueva = [[self alloc] init];
  nueva->_clase = std::move(clase);
  nueva->_puntos = puntos;
  return nueva;
}
+ (NSFont*)systemFontOfSize:(CGFloat)puntos {
  return [self clase:"system" puntos:puntos];
}
+ (NSFont*)systemFontOfSize:(CGFloat)puntos weight:(NSFontWeight)peso {
  return [self clase:"system" puntos:puntos];
}
+ (NSFont*)monospacedSystemFontOfSize:(CGFloat)puntos weight:(NSFontWeight)peso {
  return [self clase:"fixed" puntos:puntos];
}
+ (NSFont*)monospacedDigitSystemFontOfSize:(CGFloat)puntos weight:(NSFontWeight)peso {
  return [self clase:"digits" puntos:puntos];
}
- (CGFloat)pointSize {
  return _puntos;
}
@end

@implementation NSImageSymbolConfiguration
+ (instancetype)configurationWithPointSize:(CGFloat)puntos weight:(NSFontWeight)peso {
  return [[self alloc] init];
}
@end

@implementation NSImage {
  NSString* _simbolo;
  NSSize _lado;
  NSMutableArray* _mapas;
}
+ (instancetype)imageWithSystemSymbolName:(NSString*)nombre accessibilityDescription:(NSString*)descripcion {
  if (tramoya::sistema().sinSimbolos) return nil;
  NSImage* const nueva = [[self alloc] initWithSize:NSZeroSize];
  nueva->_simbolo = nombre;
  return nueva;
}
- (instancetype)initWithSize:(NSSize)lado {
  if ((self = [super init])) {
    _lado = lado;
    _mapas = [NSMutableArray array];
  }
  return self;
}
- (NSSize)size {
  return _lado;
}
- (NSString*)name {
  return _simbolo;
}
- (void)addRepresentation:(NSImageRep*)mapa {
  [_mapas addObject:mapa];
}
- (NSArray*)representations {
  return _mapas;
}
@end

@implementation NSImageRep
@end

@implementation NSBitmapImageRep {
  NSInteger _pixeles;
}
- (instancetype)initWithBitmapDataPlanes:(unsigned char**)planos
                              pixelsWide:(NSInteger)ancho
                              pixelsHigh:(NSInteger)alto
                           bitsPerSample:(NSInteger)bits
                         samplesPerPixel:(NSInteger)partes
                                hasAlpha:(BOOL)conOpacidad
                                isPlanar:(BOOL)enPlanos
                          colorSpaceName:(NSString*)espacio
                             bytesPerRow:(NSInteger)bytes
                            bitsPerPixel:(NSInteger)porPixel {
  if (tramoya::sistema().sinMapaDeBits) return nil;
  if ((self = [super init])) _pixeles = ancho;
  return self;
}
- (NSInteger)pixelsWide {
  return _pixeles;
}
@end

@implementation NSGraphicsContext
+ (NSGraphicsContext*)graphicsContextWithBitmapImageRep:(NSBitmapImageRep*)mapa {
  return [[self alloc] init];
}
@end

@implementation NSAffineTransform
+ (NSAffineTransform*)transform {
  return [[self alloc] init];
}
@end
