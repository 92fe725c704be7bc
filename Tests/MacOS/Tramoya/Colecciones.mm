#include <algorithm>
#include <vector>

#import "MacOS/Tramoya/Runtime.h"
#import "MacOS/Tramoya/Tramoya.h"

// Arrays, sets, dictionaries.

@interface NSArray (Tramoya)
- (std::vector<id>&)lista;
- (std::vector<id>&)cambiada;
@end

@implementation NSArray {
  std::vector<id> _lista;
  unsigned long _cambios;
}
+ (instancetype)array {
  return [[self alloc] init];
}
+ (instancetype)arrayWithObjects:(id const[])objetos count:(NSUInteger)cuantos {
  NSArray* const nueva = [[self alloc] init];
  nueva->_lista.assign(objetos, objetos + cuantos);
  return nueva;
}
+ (instancetype)arrayWithArray:(NSArray*)otra {
  NSArray* const nueva = [[self alloc] init];
  nueva->_lista = [otra lista];
  return nueva;
}
- (std::vector<id>&)lista {
  return _lista;
}
- (std::vector<id>&)cambiada {
  ++_cambios;
  return _lista;
}
- (NSUInteger)count {
  return _lista.size();
}
- (id)objectAtIndex:(NSUInteger)donde {
  if (donde < _lista.size()) return _lista[donde];
  tramoya::faltas().push_back("an array of " + std::to_string(_lista.size()) + " is asked for " +
                              std::to_string(donde));
  return nil;
}
- (id)objectAtIndexedSubscript:(NSUInteger)donde {
  return [self objectAtIndex:donde];
}
- (id)lastObject {
  return _lista.empty() ? nil : _lista.back();
}
- (id)firstObject {
  return _lista.empty() ? nil : _lista.front();
}
- (NSUInteger)indexOfObject:(id)cual {
  auto const lugar = std::ranges::find_if(_lista, [cual](id uno) { return [uno isEqual:cual]; });
  return lugar == _lista.end() ? NSNotFound : static_cast<NSUInteger>(lugar - _lista.begin());
}
- (BOOL)containsObject:(id)cual {
  return [self indexOfObject:cual] != NSNotFound;
}
- (BOOL)isEqualToArray:(NSArray*)otra {
  return std::ranges::equal(_lista, [otra lista], [](id a, id b) { return [a isEqual:b] == YES; });
}
- (id)copyWithZone:(NSZone*)zona {
  return [NSArray arrayWithArray:self];
}
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)estado
                                  objects:(__unsafe_unretained id[])sitio
                                    count:(NSUInteger)cabe {
  NSUInteger puestos = 0;
  for (; puestos < cabe && estado->state < _lista.size(); ++puestos) sitio[puestos] = _lista[estado->state++];
  estado->itemsPtr = sitio;
  estado->mutationsPtr = &_cambios;
  return puestos;
}
@end

@implementation NSMutableArray
- (void)addObject:(id)uno {
  [self cambiada].push_back(uno);
}
- (void)removeObject:(id)uno {
  std::erase_if([self cambiada], [uno](id otro) { return [uno isEqual:otro] == YES; });
}
- (void)removeAllObjects {
  [self cambiada].clear();
}
- (void)removeLastObject {
  [self cambiada].pop_back();
}
@end

@implementation NSSet {
 @protected
  NSMutableArray* _miembros;
}
+ (instancetype)set {
  return [[self alloc] init];
}
- (instancetype)init {
  if ((self = [super init])) _miembros = [NSMutableArray array];
  return self;
}
- (BOOL)containsObject:(id)uno {
  return [_miembros containsObject:uno];
}
- (NSUInteger)count {
  return _miembros.count;
}
@end

@implementation NSMutableSet
- (void)addObject:(id)uno {
  if (![_miembros containsObject:uno]) [_miembros addObject:uno];
}
- (void)removeAllObjects {
  [_miembros removeAllObjects];
}
@end

@implementation NSDictionary {
 @protected
  NSMutableArray* _claves;
  NSMutableArray* _valores;
}
- (instancetype)init {
  if ((self = [super init])) {
    _claves = [NSMutableArray array];
    _valores = [NSMutableArray array];
  }
  return self;
}
+ (instancetype)dictionaryWithObjects:(id const[])valores
                              forKeys:(id const[])claves
                                count:(NSUInteger)cuantos {
  NSDictionary* const nuevo = [[self alloc] init];
  for (NSUInteger i = 0; i < cuantos; ++i) {
    [nuevo->_claves addObject:claves[i]];
    [nuevo->_valores addObject:valores[i]];
  }
  return nuevo;
}
- (id)objectForKey:(id)clave {
  NSUInteger const donde = [_claves indexOfObject:clave];
  return donde == NSNotFound ? nil : _valores[donde];
}
- (id)objectForKeyedSubscript:(id)clave {
  return [self objectForKey:clave];
}
- (NSUInteger)count {
  return _claves.count;
}
@end

@implementation NSIndexSet {
  NSUInteger _cual;
  NSUInteger _cuantos;
}
+ (instancetype)indexSet {
  return [[self alloc] init];
}
+ (instancetype)indexSetWithIndex:(NSUInteger)cual {
  NSIndexSet* const nuevo = [[self alloc] init];
  nuevo->_cual = cual;
  nuevo->_cuantos = 1;
  return nuevo;
}
- (NSUInteger)count {
  return _cuantos;
}
- (NSUInteger)firstIndex {
  return _cuantos == 0 ? NSNotFound : _cual;
}
@end
