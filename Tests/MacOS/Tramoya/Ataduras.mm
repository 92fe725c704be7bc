#include <cmath>
#include <map>
#include <utility>

#import "MacOS/Tramoya/Interior.h"

// Layout: what follows from equalities alone, one unknown at a time. Inequalities and priorities are written
// down.

namespace {

enum Cual : NSInteger { izquierda, derecha, centroX, ancho, arriba, abajo, centroY, alto, base };

enum class Clase : std::uint8_t { igual, almenos, alomas };

}  // namespace

@implementation NSLayoutAnchor {
  __weak id _vista;
  NSInteger _cual;
}
- (id)vista {
  return _vista;
}
- (void)setVista:(id)vista {
  _vista = vista;
}
- (NSInteger)cual {
  return _cual;
}
- (void)setCual:(NSInteger)cual {
  _cual = cual;
}
@end
@implementation NSLayoutXAxisAnchor
@end
@implementation NSLayoutYAxisAnchor
@end
@implementation NSLayoutDimension
@end

@interface NSLayoutConstraint (Tramoya)
+ (NSLayoutConstraint*)de:(NSLayoutAnchor*)uno
                        a:(NSLayoutAnchor*)otro
                      mas:(CGFloat)mas
                    clase:(NSInteger)clase;
@end

@implementation NSLayoutConstraint {
 @public
  __weak NSView* _una;
  __weak NSView* _otra;
  BOOL _conOtra;
  NSInteger _cualUna;
  NSInteger _cualOtra;
  CGFloat _mas;
  NSInteger _clase;
  BOOL _activa;
}
+ (NSLayoutConstraint*)de:(NSLayoutAnchor*)uno
                        a:(NSLayoutAnchor*)otro
                      mas:(CGFloat)mas
                    clase:(NSInteger)clase {
  NSLayoutConstraint* const nueva = [[self alloc] init];
  nueva->_una = uno.vista;
  nueva->_otra = otro.vista;
  nueva->_conOtra = otro != nil;
  nueva->_cualUna = uno.cual;
  nueva->_cualOtra = otro.cual;
  nueva->_mas = mas;
  nueva->_clase = clase;
  return nueva;
}
+ (void)activateConstraints:(NSArray*)todas {
  for (NSLayoutConstraint* una in todas) una.active = YES;
}
- (CGFloat)constant {
  return _mas;
}
- (void)setConstant:(CGFloat)mas {
  _mas = mas;
}
- (BOOL)isActive {
  return _activa;
}
/// Held by the views' nearest common ancestor; without one the system raises an exception.
- (void)setActive:(BOOL)activa {
  NSView* const una = _una;
  NSView* const otra = _conOtra ? _otra : una;
  NSView* comun = una;
  while (comun != nil && ![otra isDescendantOf:comun]) comun = comun.superview;
  if (comun == nil) {
    tramoya::faltas().push_back("a constraint between views with no common ancestor");
    return;
  }
  if (activa && !_activa) [[comun ataduras] addObject:self];
  if (!activa && _activa) [[comun ataduras] removeObject:self];
  _activa = activa;
}
@end

@implementation NSLayoutAnchor (Ataduras)
- (NSLayoutConstraint*)constraintEqualToAnchor:(NSLayoutAnchor*)otro {
  return [NSLayoutConstraint de:self a:otro mas:0 clase:0];
}
- (NSLayoutConstraint*)constraintEqualToAnchor:(NSLayoutAnchor*)otro constant:(CGFloat)mas {
  return [NSLayoutConstraint de:self a:otro mas:mas clase:0];
}
- (NSLayoutConstraint*)constraintGreaterThanOrEqualToAnchor:(NSLayoutAnchor*)otro constant:(CGFloat)mas {
  return [NSLayoutConstraint de:self a:otro mas:mas clase:1];
}
- (NSLayoutConstraint*)constraintLessThanOrEqualToAnchor:(NSLayoutAnchor*)otro constant:(CGFloat)mas {
  return [NSLayoutConstraint de:self a:otro mas:mas clase:2];
}
@end

@implementation NSLayoutDimension (Ataduras)
- (NSLayoutConstraint*)constraintEqualToConstant:(CGFloat)cuanto {
  return [NSLayoutConstraint de:self a:nil mas:cuanto clase:0];
}
@end

#define ANCLA(nombre, clase, valor)            \
  -(clase*)nombre {                            \
    clase* const ancla = [[clase alloc] init]; \
    ancla.vista = self;                        \
    ancla.cual = valor;                        \
    return ancla;                              \
  }

@implementation NSView (Ataduras)
ANCLA(leadingAnchor, NSLayoutXAxisAnchor, izquierda)
ANCLA(trailingAnchor, NSLayoutXAxisAnchor, derecha)
ANCLA(centerXAnchor, NSLayoutXAxisAnchor, centroX)
ANCLA(topAnchor, NSLayoutYAxisAnchor, arriba)
ANCLA(bottomAnchor, NSLayoutYAxisAnchor, abajo)
ANCLA(centerYAnchor, NSLayoutYAxisAnchor, centroY)
ANCLA(firstBaselineAnchor, NSLayoutYAxisAnchor, base)
ANCLA(widthAnchor, NSLayoutDimension, ancho)
ANCLA(heightAnchor, NSLayoutDimension, alto)
/// The height that a view's own constraints ask for, or the one its only column of content does.
- (NSSize)fittingSize {
  CGFloat altura = 0;
  CGFloat anchura = 0;
  CGFloat relleno = 0;
  for (NSLayoutConstraint* una in [self ataduras]) {
    if (una->_clase != 0) continue;
    if (una->_una == self && !una->_conOtra && una->_cualUna == alto) return NSMakeSize(anchura, una->_mas);
    if (una->_una == self && !una->_conOtra && una->_cualUna == ancho) anchura = una->_mas;
    bool const borde = una->_conOtra && una->_otra == self && una->_cualUna == una->_cualOtra;
    if (borde && (una->_cualUna == arriba || una->_cualUna == abajo)) {
      relleno += std::abs(una->_mas);
      altura = [una->_una fittingSize].height;
    }
  }
  return NSMakeSize(anchura, altura + relleno);
}
@end

namespace tramoya {

namespace {

/// An edge of a view: 0 left or top, 1 right or bottom, counted from the root's upper left corner.
struct Cuenta {
  std::map<std::pair<void const*, int>, CGFloat> bordes;

  static void const* clave(NSView* vista) { return (__bridge void const*)vista; }
  std::optional<CGFloat> borde(NSView* vista, int cual) const {
    auto const lugar = bordes.find({clave(vista), cual});
    if (lugar == bordes.end()) return std::nullopt;
    return lugar->second;
  }
  bool pon(NSView* vista, int cual, CGFloat valor) {
    return bordes.emplace(std::pair{clave(vista), cual}, valor).second;
  }

  std::optional<CGFloat> valor(NSView* vista, NSInteger cual) const {
    int const eje = cual >= arriba ? 2 : 0;
    auto const uno = borde(vista, eje);
    auto const otro = borde(vista, eje + 1);
    switch (cual) {
      case izquierda:
      case arriba:
        return uno;
      case derecha:
      case abajo:
        return otro;
      case ancho:
      case alto:
        return uno && otro ? std::optional{*otro - *uno} : std::nullopt;
      case centroX:
      case centroY:
        return uno && otro ? std::optional{(*uno + *otro) / 2} : std::nullopt;
      default:
        return std::nullopt;
    }
  }
  bool fija(NSView* vista, NSInteger cual, CGFloat valor) {
    int const eje = cual >= arriba ? 2 : 0;
    auto const uno = borde(vista, eje);
    auto const otro = borde(vista, eje + 1);
    switch (cual) {
      case izquierda:
      case arriba:
        return pon(vista, eje, valor);
      case derecha:
      case abajo:
        return pon(vista, eje + 1, valor);
      case ancho:
      case alto:
        if (uno) return pon(vista, eje + 1, *uno + valor);
        return otro && pon(vista, eje, *otro - valor);
      default:
        return false;
    }
  }
  bool sigue(NSLayoutConstraint* una) {
    if (una->_clase != 0) return false;
    NSView* const a = una->_una;
    if (!una->_conOtra) return fija(a, una->_cualUna, una->_mas);
    NSView* const b = una->_otra;
    if (auto const dado = valor(b, una->_cualOtra)) {
      if (fija(a, una->_cualUna, *dado + una->_mas)) return true;
    }
    if (auto const dado = valor(a, una->_cualUna)) return fija(b, una->_cualOtra, *dado - una->_mas);
    return false;
  }
};

void juntar(NSView* raiz, NSMutableArray<NSLayoutConstraint*>* todas) {
  for (NSLayoutConstraint* una in [raiz ataduras]) [todas addObject:una];
  for (NSView* hija in raiz.subviews) juntar(hija, todas);
}

}  // namespace

std::optional<NSRect> lugar(NSView* vista) {
  NSView* raiz = vista;
  while (raiz.superview != nil) raiz = raiz.superview;
  NSMutableArray<NSLayoutConstraint*>* const todas = [NSMutableArray array];
  juntar(raiz, todas);
  Cuenta cuenta;
  NSRect const entero = raiz.frame;
  for (int borde = 0; borde < 4; ++borde) {
    cuenta.pon(raiz, borde, borde == 1 ? NSWidth(entero) : borde == 3 ? NSHeight(entero) : 0);
  }
  for (bool algo = true; algo;) {
    algo = false;
    for (NSLayoutConstraint* una in todas) algo = cuenta.sigue(una) || algo;
  }
  auto const x = cuenta.valor(vista, izquierda);
  auto const y = cuenta.valor(vista, arriba);
  auto const w = cuenta.valor(vista, ancho);
  auto const h = cuenta.valor(vista, alto);
  if (!x || !y || !w || !h) return std::nullopt;
  return NSMakeRect(*x, *y, *w, *h);
}

}  // namespace tramoya
