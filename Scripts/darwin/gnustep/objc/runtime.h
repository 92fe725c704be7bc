// What the toolkit's headers ask of the runtime's header; the packaged one does not pass clang in this mode.
#pragma once

#include <objc/objc.h>
#include <stddef.h>
#include <stdint.h>

typedef struct objc_method* Method;
typedef struct objc_ivar* Ivar;
typedef struct objc_property* objc_property_t;
typedef struct objc_category* Category;
