#pragma once

// What the toolkit of these tests needs of the Objective-C runtime it runs on.

#import <Foundation/Foundation.h>

extern "C" {
id class_createInstance(Class clase, size_t de_mas);
id object_dispose(id objeto);
Class object_getClass(id objeto);
char const* class_getName(Class clase);
Class class_getSuperclass(Class clase);
BOOL class_isMetaClass(Class clase);
IMP class_getMethodImplementation(Class clase, SEL orden);
BOOL class_respondsToSelector(Class clase, SEL orden);
BOOL class_conformsToProtocol(Class clase, Protocol* protocolo);
id objc_getClass(char const* nombre);
char const* sel_getName(SEL orden);
char const* sel_getType_np(SEL orden);
SEL sel_registerName(char const* nombre);
id objc_retain_fast_np(id objeto);
BOOL objc_release_fast_no_destroy_np(id objeto);
BOOL objc_registerSmallObjectClass_np(Class clase, uintptr_t marca);
BOOL objc_create_block_classes_as_subclasses_of(Class madre);
void* _Block_copy(void const* bloque);
void _Block_release(void const* bloque);
extern IMP (*__objc_msg_forward2)(id, SEL);
}

namespace tramoya {

/// What an object was told by messages that the toolkit has no method for: a setter's value, to be given by
/// the getter of the same name.
struct Registro;
Registro* registroNuevo();
void borrar(Registro* registro);

/// The answer to a message that the toolkit has no method for, by what its call site says of its types.
IMP paraLoNoEscrito(id quien, SEL orden);

}  // namespace tramoya

@interface NSObject (Tramoya)
- (tramoya::Registro&)registro;
@end
