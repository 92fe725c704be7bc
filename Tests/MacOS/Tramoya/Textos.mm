#include <string>

#import "MacOS/Tramoya/Runtime.h"
#import "MacOS/Tramoya/Tramoya.h"
#include "ZorveCore/Texto/Texto.h"

// Texts, bytes, numbers and what is made of them.

namespace {

/// How the compiler lays a literal out: characters of one byte, or units of UTF-16.
struct Literal {
  Class clase;
  std::uint32_t banderas;
  std::uint32_t largo;
  std::uint32_t bytes;
  std::uint32_t resumen;
  char const* datos;
};

void agregarUtf8(std::string& salida, char32_t punto) {
  auto const resto = [&salida, punto](unsigned corrido) {
    salida += static_cast<char>(0x80U | ((punto >> corrido) & 0x3FU));
  };
  if (punto < 0x80) {
    salida += static_cast<char>(punto);
  } else if (punto < 0x800) {
    salida += static_cast<char>(0xC0U | (punto >> 6U));
    resto(0);
  } else if (punto < 0x10000) {
    salida += static_cast<char>(0xE0U | (punto >> 12U));
    resto(6);
    resto(0);
  } else {
    salida += static_cast<char>(0xF0U | (punto >> 18U));
    resto(12);
    resto(6);
    resto(0);
  }
}

std::string deLiteral(Literal const& literal) {
  if ((literal.banderas & 3U) != 2) return {literal.datos, literal.bytes};
  std::string salida;
  auto const* const unidades = reinterpret_cast<char16_t const*>(literal.datos);
  for (std::uint32_t i = 0; i < literal.largo; ++i) {
    char32_t punto = unidades[i];
    if (punto >= 0xD800 && punto < 0xDC00 && i + 1 < literal.largo) {
      punto = 0x10000 + ((punto - 0xD800) << 10U) + (unidades[++i] - 0xDC00U);
    }
    agregarUtf8(salida, punto);
  }
  return salida;
}

/// Up to eight characters of seven bits lie in the pointer's bits.
std::string deCorto(std::uintptr_t bits) {
  std::string salida;
  auto const cuantos = (bits >> 3U) & 31U;
  for (unsigned i = 0; i < cuantos; ++i) salida += static_cast<char>((bits >> (57U - i * 7U)) & 127U);
  return salida;
}

}  // namespace

@interface NSString (Tramoya)
- (std::string const&)escrito;
@end

@implementation NSString {
  std::string _escrito;
}
- (std::string const&)escrito {
  return _escrito;
}
- (instancetype)initWithBytes:(void const*)bytes length:(NSUInteger)largo encoding:(NSStringEncoding)como {
  if ((self = [super init])) {
    std::string const dado{static_cast<char const*>(bytes), largo};
    if (zorve::conUtf8Valido(dado) != dado) return nil;
    _escrito = dado;
  }
  return self;
}
- (NSUInteger)length {
  NSUInteger unidades = 0;
  for (char const c : tramoya::utf8(self)) {
    auto const byte = static_cast<unsigned char>(c);
    unidades += byte >= 0xF0 ? 2 : (byte & 0xC0U) == 0x80 ? 0 : 1;
  }
  return unidades;
}
- (BOOL)isEqualToString:(NSString*)otra {
  return otra != nil && tramoya::utf8(self) == tramoya::utf8(otra);
}
- (BOOL)isEqual:(id)otra {
  return [otra isKindOfClass:NSString.class] && [self isEqualToString:otra];
}
- (NSUInteger)hash {
  return std::hash<std::string>{}(tramoya::utf8(self));
}
- (NSString*)stringByAppendingString:(NSString*)otra {
  return tramoya::texto(tramoya::utf8(self) + tramoya::utf8(otra));
}
- (id)copyWithZone:(NSZone*)zona {
  return self;
}
- (NSData*)dataUsingEncoding:(NSStringEncoding)como allowLossyConversion:(BOOL)conPerdida {
  auto const bytes = tramoya::utf8(self);
  return [NSData dataWithBytes:bytes.data() length:bytes.size()];
}
@end

@implementation NSData {
  std::string _bytes;
}
+ (instancetype)dataWithBytes:(void const*)bytes length:(NSUInteger)largo {
  NSData* const nueva = [[self alloc] init];
  nueva->_bytes.assign(static_cast<char const*>(bytes), largo);
  return nueva;
}
- (NSUInteger)length {
  return _bytes.size();
}
- (void const*)bytes {
  return _bytes.data();
}
@end

@implementation NSValue
@end

@implementation NSNumber {
  double _valor;
}
+ (NSNumber*)numberWithDouble:(double)valor {
  NSNumber* const nuevo = [[self alloc] init];
  nuevo->_valor = valor;
  return nuevo;
}
+ (NSNumber*)numberWithBool:(BOOL)valor {
  return [self numberWithDouble:valor];
}
+ (NSNumber*)numberWithInteger:(NSInteger)valor {
  return [self numberWithDouble:static_cast<double>(valor)];
}
- (BOOL)boolValue {
  return _valor != 0;
}
- (NSInteger)integerValue {
  return static_cast<NSInteger>(_valor);
}
- (double)doubleValue {
  return _valor;
}
- (BOOL)isEqual:(id)otro {
  return [otro isKindOfClass:NSNumber.class] && [otro doubleValue] == _valor;
}
@end

@implementation NSAttributedString {
  NSString* _texto;
  NSDictionary* _como;
}
- (instancetype)initWithString:(NSString*)texto attributes:(NSDictionary*)como {
  if ((self = [super init])) {
    _texto = texto;
    _como = como;
  }
  return self;
}
- (NSString*)string {
  return _texto;
}
- (NSDictionary*)attributesAtIndex:(NSUInteger)donde effectiveRange:(NSRangePointer)hasta {
  return _como;
}
- (NSUInteger)length {
  return _texto.length;
}
- (id)attribute:(NSString*)nombre atIndex:(NSUInteger)donde effectiveRange:(NSRangePointer)hasta {
  return [_como objectForKey:nombre];
}
@end

void _NSRangeExceptionRaise() { tramoya::faltas().push_back("a range ends beyond the largest number"); }

@implementation NSMutableAttributedString {
  struct Puesto {
    std::string nombre;
    id valor;
    NSRange donde;
  };
  std::vector<Puesto> _puestos;
}
- (void)addAttribute:(NSString*)nombre value:(id)valor range:(NSRange)donde {
  if (NSMaxRange(donde) > self.length) tramoya::faltas().push_back("an attribute reaches beyond its text");
  _puestos.push_back({tramoya::utf8(nombre), valor, donde});
}
- (id)attribute:(NSString*)nombre atIndex:(NSUInteger)donde effectiveRange:(NSRangePointer)hasta {
  for (auto const& puesto : _puestos) {
    if (puesto.nombre == tramoya::utf8(nombre) && NSLocationInRange(donde, puesto.donde)) return puesto.valor;
  }
  return [super attribute:nombre atIndex:donde effectiveRange:hasta];
}
@end

@implementation NSParagraphStyle
@end

@implementation NSMutableParagraphStyle
@end

namespace tramoya {

id atributo(NSTextField* rotulo, NSString* nombre, NSUInteger donde) {
  return [rotulo.attributedStringValue attribute:nombre atIndex:donde effectiveRange:nullptr];
}

std::string utf8(id cadena) {
  if (cadena == nil) return {};
  auto const bits = reinterpret_cast<std::uintptr_t>((__bridge void*)cadena);
  if ((bits & 7U) == 4) return deCorto(bits);
  if (object_getClass(cadena) == NSConstantString.class) return deLiteral(*(__bridge Literal const*)cadena);
  return [static_cast<NSString*>(cadena) escrito];
}

NSString* texto(std::string_view utf8) {
  return [[NSString alloc] initWithBytes:utf8.data() length:utf8.size() encoding:NSUTF8StringEncoding];
}

}  // namespace tramoya
