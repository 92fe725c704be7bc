#import <UniformTypeIdentifiers/UniformTypeIdentifiers.h>

#import "MacOS/Tramoya/Interior.h"

// What the system knows and keeps: the bundle, the home, settings, applications, the pasteboard, the login
// item.

NSString* const NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification =
    @"NSWorkspaceAccessibilityDisplayOptionsDidChange";
NSString* const NSPasteboardTypeString = @"public.utf8-plain-text";

namespace tramoya {

Sistema& sistema() {
  static Sistema unico;
  return unico;
}

}  // namespace tramoya

using tramoya::sistema;
using tramoya::texto;
using tramoya::utf8;

@implementation NSURL {
  NSString* _ruta;
}
+ (instancetype)fileURLWithPath:(NSString*)ruta {
  NSURL* const nueva = [[self alloc] init];
  nueva->_ruta = ruta;
  return nueva;
}
- (NSString*)path {
  return _ruta;
}
@end

@implementation NSBundle {
  NSString* _identificador;
}
+ (NSBundle*)mainBundle {
  static NSBundle* const unico = [[NSBundle alloc] init];
  unico->_identificador = sistema().paquete.empty() ? nil : texto(sistema().paquete);
  return unico;
}
- (instancetype)initWithURL:(NSURL*)donde {
  if ((self = [super init])) {
    auto const ruta = utf8(donde.path);
    if (ruta.ends_with("/")) return nil;
    _identificador = ruta.contains("sin-identificador") ? nil : texto(ruta.substr(ruta.rfind('/') + 1));
  }
  return self;
}
- (NSString*)bundleIdentifier {
  return _identificador;
}
- (NSDictionary*)infoDictionary {
  if (!sistema().version) return @{};
  return @{@"CFBundleShortVersionString" : texto(*sistema().version)};
}
@end

@implementation NSLocale
+ (id)currentLocale {
  return [[self alloc] init];
}
- (NSString*)localeIdentifier {
  return texto(sistema().region);
}
@end

@implementation NSFileManager
@dynamic delegate;
+ (NSFileManager*)defaultManager {
  static NSFileManager* const unico = [[NSFileManager alloc] init];
  return unico;
}
- (NSURL*)homeDirectoryForCurrentUser {
  return [NSURL fileURLWithPath:texto(sistema().home)];
}
@end

@implementation NSUserDefaults {
  std::string _dominio;
}
+ (NSUserDefaults*)standardUserDefaults {
  NSUserDefaults* const propias = [[self alloc] init];
  propias->_dominio = sistema().paquete;
  return propias;
}
- (instancetype)initWithSuiteName:(NSString*)nombre {
  if ((self = [super init])) {
    _dominio = utf8(nombre);
    if (_dominio == sistema().paquete) tramoya::faltas().push_back("the bundle's own domain by name");
  }
  return self;
}
- (id)objectForKey:(NSString*)clave {
  auto const& todas = sistema().preferencias[_dominio];
  auto const lugar = todas.find(utf8(clave));
  return lugar == todas.end() ? nil : lugar->second;
}
- (BOOL)boolForKey:(NSString*)clave {
  return [[self objectForKey:clave] boolValue];
}
- (void)setObject:(id)valor forKey:(NSString*)clave {
  sistema().preferencias[_dominio][utf8(clave)] = valor;
}
- (void)removeObjectForKey:(NSString*)clave {
  sistema().preferencias[_dominio].erase(utf8(clave));
}
- (void)removePersistentDomainForName:(NSString*)nombre {
  sistema().preferencias.erase(utf8(nombre));
}
@end

@implementation NSNotification {
  NSString* _nombre;
  __weak id _de;
}
+ (instancetype)notificationWithName:(NSString*)nombre object:(id)de {
  NSNotification* const nueva = [[self alloc] init];
  nueva->_nombre = nombre;
  nueva->_de = de;
  return nueva;
}
- (NSString*)name {
  return _nombre;
}
- (id)object {
  return _de;
}
@end

@interface Oyente : NSObject
@property(nonatomic, weak) id quien;
@property(nonatomic) SEL orden;
@property(nonatomic, copy) NSString* nombre;
@end
@implementation Oyente
@end

@implementation NSNotificationCenter {
  NSMutableArray* _oyentes;
}
+ (NSNotificationCenter*)defaultCenter {
  static NSNotificationCenter* const unico = [[NSNotificationCenter alloc] init];
  return unico;
}
- (instancetype)init {
  if ((self = [super init])) _oyentes = [NSMutableArray array];
  return self;
}
- (void)addObserver:(id)quien selector:(SEL)orden name:(NSString*)nombre object:(id)de {
  Oyente* const nuevo = [[Oyente alloc] init];
  nuevo.quien = quien;
  nuevo.orden = orden;
  nuevo.nombre = nombre;
  [_oyentes addObject:nuevo];
}
- (void)removeObserver:(id)quien {
  for (Oyente* uno in [_oyentes copy]) {
    if (uno.quien == quien || uno.quien == nil) [_oyentes removeObject:uno];
  }
}
- (void)postNotificationName:(NSString*)nombre object:(id)de {
  NSNotification* const nota = [NSNotification notificationWithName:nombre object:de];
  for (Oyente* uno in [_oyentes copy]) {
    if ([uno.nombre isEqualToString:nombre]) tramoya::manda(uno.quien, uno.orden, nota);
  }
}
@end

@implementation UTType
+ (UTType*)typeWithIdentifier:(NSString*)nombre {
  if (!sistema().tiposConocidos.contains(utf8(nombre))) return nil;
  UTType* const nuevo = [[self alloc] init];
  [nuevo setValue:nombre forKey:@"identifier"];
  return nuevo;
}
@end

@implementation NSWorkspace
+ (NSWorkspace*)sharedWorkspace {
  static NSWorkspace* const unico = [[NSWorkspace alloc] init];
  return unico;
}
- (NSNotificationCenter*)notificationCenter {
  static NSNotificationCenter* const suyo = [[NSNotificationCenter alloc] init];
  return suyo;
}
- (BOOL)accessibilityDisplayShouldIncreaseContrast {
  return sistema().masContraste;
}
- (BOOL)accessibilityDisplayShouldReduceTransparency {
  return sistema().menosTransparencia;
}
- (NSURL*)URLForApplicationWithBundleIdentifier:(NSString*)identificador {
  if (!sistema().aplicaciones.contains(utf8(identificador))) return nil;
  return [NSURL fileURLWithPath:texto("/Applications/" + utf8(identificador))];
}
- (BOOL)openURL:(NSURL*)cual {
  tramoya::anota("workspace opens " + utf8(cual.path));
  return YES;
}
- (NSURL*)URLForApplicationToOpenContentType:(UTType*)tipo {
  auto const quien = sistema().manejadores.find(utf8([tipo valueForKey:@"identifier"]));
  return quien == sistema().manejadores.end()
             ? nil
             : [NSURL fileURLWithPath:texto("/Applications/" + quien->second)];
}
@end

@implementation NSPasteboard
+ (NSPasteboard*)generalPasteboard {
  static NSPasteboard* const unico = [[NSPasteboard alloc] init];
  return unico;
}
- (NSInteger)clearContents {
  sistema().portapapeles.clear();
  return 1;
}
- (BOOL)setString:(NSString*)cadena forType:(NSString*)tipo {
  sistema().portapapeles.push_back(utf8(cadena));
  return YES;
}
- (NSString*)stringForType:(NSString*)tipo {
  return sistema().portapapeles.empty() ? nil : texto(sistema().portapapeles.front());
}
@end

@implementation NSError {
  NSString* _descripcion;
}
+ (NSError*)conDescripcion:(NSString*)descripcion {
  NSError* const nuevo = [[self alloc] init];
  nuevo->_descripcion = descripcion;
  return nuevo;
}
- (NSString*)localizedDescription {
  return _descripcion;
}
@end

@implementation SMAppService
+ (SMAppService*)mainAppService {
  static SMAppService* const unico = [[SMAppService alloc] init];
  return unico;
}
- (SMAppServiceStatus)status {
  return sistema().inicioActivo ? SMAppServiceStatusEnabled : 0;
}
- (BOOL)poner:(bool)activo fallo:(NSError* __autoreleasing*)fallo {
  if (!sistema().falloDeInicio) {
    sistema().inicioActivo = activo;
    return YES;
  }
  *fallo = [NSError conDescripcion:texto(*sistema().falloDeInicio)];
  return NO;
}
- (BOOL)registerAndReturnError:(NSError* __autoreleasing*)fallo {
  return [self poner:true fallo:fallo];
}
- (BOOL)unregisterAndReturnError:(NSError* __autoreleasing*)fallo {
  return [self poner:false fallo:fallo];
}
@end

Class NSClassFromString(NSString* nombre) {
  auto const cual = utf8(nombre);
  if (cual == "NSGlassEffectView" && !sistema().conVidrio) return Nil;
  return objc_getClass(cual.c_str());
}

SEL NSSelectorFromString(NSString* nombre) { return sel_registerName(utf8(nombre).c_str()); }
