#include <algorithm>
#include <cctype>
#include <cstring>
#include <map>
#include <set>
#include <string>
#include <variant>

#import "MacOS/Tramoya/Runtime.h"
#import "MacOS/Tramoya/Tramoya.h"

namespace tramoya {

struct Registro {
  std::map<std::string, id> objetos;
  std::map<std::string, __weak id> ajenos;
  std::map<std::string, double> numeros;
  std::map<std::string, NSInteger> enteros;
  std::map<std::string, NSRect> marcos;
  std::map<std::string, NSSize> tamanos;
  std::map<std::string, NSEdgeInsets> margenes;
  std::map<std::string, SEL> ordenes;
};

Registro* registroNuevo() { return new Registro; }
void borrar(Registro* registro) { delete registro; }

namespace {

/// What the system's documentation calls weak: not kept alive by who is told of it.
bool esAjeno(std::string const& nombre) {
  static std::set<std::string> const debiles{"delegate", "dataSource", "target"};
  return debiles.contains(nombre);
}

/// "setHidden:", "isHidden" and "hidden" speak of the same value.
std::string nombreDe(SEL orden) {
  std::string nombre = sel_getName(orden);
  if (nombre.starts_with("set") && nombre.ends_with(":"))
    nombre = nombre.substr(3, nombre.size() - 4);
  else if (nombre.starts_with("is") && nombre.size() > 2 && std::isupper(nombre[2]) != 0)
    nombre = nombre.substr(2);
  nombre[0] = static_cast<char>(std::tolower(nombre[0]));
  return nombre;
}

void apunta(id quien, SEL orden, std::string const& que = {}) {
  anota(std::string{class_getName(object_getClass(quien))} + " " + sel_getName(orden) +
        (que.empty() ? "" : " " + que));
}

void ponObjeto(id quien, SEL orden, id valor) {
  auto const nombre = nombreDe(orden);
  apunta(quien, orden, valor == nil ? "nil" : [valor isKindOfClass:NSString.class] ? utf8(valor) : "");
  if (esAjeno(nombre))
    [quien registro].ajenos[nombre] = valor;
  else
    [quien registro].objetos[nombre] = valor;
}

id dameObjeto(id quien, SEL orden) {
  if (esClase(quien)) return nil;
  auto const nombre = nombreDe(orden);
  if (esAjeno(nombre)) return [quien registro].ajenos[nombre];
  return [quien registro].objetos[nombre];
}

template <class T, auto Donde>
void pon(id quien, SEL orden, T valor) {
  if constexpr (std::is_arithmetic_v<T>)
    apunta(quien, orden, std::to_string(valor));
  else
    apunta(quien, orden);
  ([quien registro].*Donde)[nombreDe(orden)] = valor;
}

template <class T, auto Donde>
T dame(id quien, SEL orden) {
  if (esClase(quien)) return T{};
  return static_cast<T>(([quien registro].*Donde)[nombreDe(orden)]);
}

void soloApunta(id quien, SEL orden) { apunta(quien, orden); }

/// The type that follows the sizes and offsets of `tipos`, `n` types on.
char const* tipo(char const* tipos, int n) {
  auto const salta = [](char const* t) {
    while (std::strchr("rnNoORV", *t) != nullptr && *t != '\0') ++t;
    return t;
  };
  auto const pasado = [](char const* t) {
    int hondo = 0;
    do {
      if (*t == '{' || *t == '(' || *t == '[') ++hondo;
      if (*t == '}' || *t == ')' || *t == ']') --hondo;
      if (*t == '^' && hondo == 0) {
        ++t;
        continue;
      }
      if (*t == '@' && t[1] == '?') ++t;
      if (*t == '"') t = std::strchr(t + 1, '"');
      ++t;
      if (hondo == 0) break;
    } while (*t != '\0');
    while (std::isdigit(*t) != 0 || *t == '-' || *t == '+') ++t;
    return t;
  };
  char const* t = salta(tipos);
  while (n-- > 0) t = salta(pasado(t));
  return t;
}

template <class F>
IMP imp(F funcion) {
  return reinterpret_cast<IMP>(funcion);
}

IMP paraPoner(char const* t) {
  if (std::strncmp(t, "{_NSRect", 8) == 0) return imp(pon<NSRect, &Registro::marcos>);
  if (std::strncmp(t, "{_NSSize", 8) == 0) return imp(pon<NSSize, &Registro::tamanos>);
  if (std::strncmp(t, "{NSEdgeInsets", 13) == 0) return imp(pon<NSEdgeInsets, &Registro::margenes>);
  switch (*t) {
    case '@':
      return imp(ponObjeto);
    case 'd':
      return imp(pon<double, &Registro::numeros>);
    case 'f':
      return imp(pon<float, &Registro::numeros>);
    case ':':
      return imp(pon<SEL, &Registro::ordenes>);
    case 'C':
    case 'c':
    case 'B':
      return imp(pon<BOOL, &Registro::enteros>);
    case 'i':
    case 'I':
      return imp(pon<int, &Registro::enteros>);
    default:
      return imp(pon<NSInteger, &Registro::enteros>);
  }
}

IMP paraDar(char const* t) {
  if (std::strncmp(t, "{_NSRect", 8) == 0) return imp(dame<NSRect, &Registro::marcos>);
  if (std::strncmp(t, "{_NSSize", 8) == 0) return imp(dame<NSSize, &Registro::tamanos>);
  if (std::strncmp(t, "{NSEdgeInsets", 13) == 0) return imp(dame<NSEdgeInsets, &Registro::margenes>);
  switch (*t) {
    case '@':
    case '#':
      return imp(dameObjeto);
    case 'd':
      return imp(dame<double, &Registro::numeros>);
    case 'f':
      return imp(dame<float, &Registro::numeros>);
    case ':':
      return imp(dame<SEL, &Registro::ordenes>);
    case 'v':
      return imp(soloApunta);
    case 'C':
    case 'c':
    case 'B':
      return imp(dame<BOOL, &Registro::enteros>);
    case 'i':
    case 'I':
      return imp(dame<int, &Registro::enteros>);
    default:
      return imp(dame<NSInteger, &Registro::enteros>);
  }
}

template <class T>
T apuntaYCero(id quien, SEL orden) {
  apunta(quien, orden);
  return T{};
}

IMP paraOtro(char const* t) {
  switch (*t) {
    case 'd':
      return imp(apuntaYCero<double>);
    case '{':
      return imp(apuntaYCero<NSRect>);
    default:
      return imp(apuntaYCero<NSInteger>);
  }
}

}  // namespace

IMP paraLoNoEscrito(id quien, SEL orden) {
  char const* const tipos = sel_getType_np(orden);
  std::string const nombre = sel_getName(orden);
  if (tipos == nullptr) return imp(apuntaYCero<NSInteger>);
  auto const dosPuntos = std::ranges::count(nombre, ':');
  if (dosPuntos == 0) return paraDar(tipo(tipos, 0));
  bool const pone = dosPuntos == 1 && nombre.starts_with("set") && *tipo(tipos, 0) == 'v';
  return pone && !esClase(quien) ? paraPoner(tipo(tipos, 3)) : paraOtro(tipo(tipos, 0));
}

}  // namespace tramoya

@implementation NSObject (PorClave)
- (void)setValue:(id)valor forKey:(NSString*)clave {
  [self registro].objetos[tramoya::utf8(clave)] = valor;
}
- (id)valueForKey:(NSString*)clave {
  return [self registro].objetos[tramoya::utf8(clave)];
}
@end
