#pragma once

// The part of libdispatch's interface that our sources use, as its manual pages give it. What it declares is
// defined with the tests' toolkit.

#include <stdint.h>

#ifdef __OBJC__
@class NSObject;
typedef NSObject* dispatch_queue_t;
#else
typedef void* dispatch_queue_t;
#endif

typedef uint64_t dispatch_time_t;
typedef void (*dispatch_function_t)(void*);

#define DISPATCH_TIME_NOW 0ULL
#define QOS_CLASS_USER_INITIATED 0x19

#ifdef __cplusplus
extern "C" {
#endif
dispatch_queue_t dispatch_get_main_queue(void);
dispatch_queue_t dispatch_get_global_queue(intptr_t identifier, uintptr_t flags);
void dispatch_async_f(dispatch_queue_t queue, void* context, dispatch_function_t work);
void dispatch_after_f(dispatch_time_t when, dispatch_queue_t queue, void* context, dispatch_function_t work);
dispatch_time_t dispatch_time(dispatch_time_t when, int64_t delta);
#ifdef __cplusplus
}
#endif
