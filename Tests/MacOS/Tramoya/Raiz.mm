#import "MacOS/Tramoya/Runtime.h"

// The root of every class: counts, equality and what all objects understand. The one file without automatic
// counting, since it is what that counting rests on.

namespace {

__attribute__((constructor)) void alEmpezar() { __objc_msg_forward2 = tramoya::paraLoNoEscrito; }

bool desciende(Class clase, Class de) {
  for (; clase != Nil; clase = class_getSuperclass(clase)) {
    if (clase == de) return true;
  }
  return false;
}

}  // namespace

@implementation NSObject {
  tramoya::Registro* _registro;
}

+ (void)load {
}

+ (void)initialize {
}

+ (id)alloc {
  return class_createInstance(self, 0);
}

+ (id)allocWithZone:(NSZone*)zona {
  return class_createInstance(self, 0);
}

+ (id)new {
  return [[self alloc] init];
}

+ (Class)class {
  return self;
}

+ (BOOL)respondsToSelector:(SEL)orden {
  return class_respondsToSelector(object_getClass(self), orden);
}

- (id)init {
  return self;
}

- (id)self {
  return self;
}

- (Class)class {
  return object_getClass(self);
}

- (id)retain {
  return objc_retain_fast_np(self);
}

- (oneway void)release {
  if (objc_release_fast_no_destroy_np(self)) [self dealloc];
}

- (id)autorelease {
  return self;
}

- (void)_ARCCompliantRetainRelease {
}

- (void)dealloc {
  tramoya::borrar(_registro);
  object_dispose(self);
}

- (tramoya::Registro&)registro {
  if (_registro == nullptr) _registro = tramoya::registroNuevo();
  return *_registro;
}

- (BOOL)isKindOfClass:(Class)clase {
  return desciende(object_getClass(self), clase);
}

- (BOOL)conformsToProtocol:(Protocol*)protocolo {
  return class_conformsToProtocol(object_getClass(self), protocolo);
}

- (BOOL)respondsToSelector:(SEL)orden {
  return class_respondsToSelector(object_getClass(self), orden);
}

- (BOOL)isEqual:(id)otro {
  return self == otro;
}

- (NSUInteger)hash {
  return reinterpret_cast<NSUInteger>(self) >> 4U;
}

- (IMP)methodForSelector:(SEL)orden {
  return class_getMethodImplementation(object_getClass(self), orden);
}

- (id)performSelector:(SEL)orden withObject:(id)con {
  return reinterpret_cast<id (*)(id, SEL, id)>([self methodForSelector:orden])(self, orden, con);
}

- (id)copy {
  return [self copyWithZone:nullptr];
}

- (id)copyWithZone:(NSZone*)zona {
  return [self retain];
}

@end

// A literal's characters lie in the program, or in the pointer itself when they are few: neither is counted.
#define SIN_CUENTA                            \
  -(id)retain {                               \
    return self;                              \
  }                                           \
  -(oneway void)release{} - (id)autorelease { \
    return self;                              \
  }

@implementation NSConstantString
SIN_CUENTA
@end

@interface LiteralCorto : NSString
@end

@implementation LiteralCorto
+ (void)load {
  objc_registerSmallObjectClass_np(self, 4);
}
SIN_CUENTA
@end

@interface Bloque : NSObject
@end

/// What the compiler's blocks are to messages.
@implementation Bloque
+ (void)load {
  objc_create_block_classes_as_subclasses_of(self);
}
- (id)copy {
  return static_cast<id>(_Block_copy(self));
}
- (id)retain {
  return static_cast<id>(_Block_copy(self));
}
- (oneway void)release {
  _Block_release(self);
}
- (id)autorelease {
  return self;
}
@end
