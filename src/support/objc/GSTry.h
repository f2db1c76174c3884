#pragma once

#import <Foundation/Foundation.h>

#ifdef __cplusplus
extern "C" {
#endif

/// Calls the function with the context. Returns the exception that it raised, or nil. C++ exceptions pass
/// through.
NSException* GSTry(void (*function)(void*), void* context);

#ifdef __cplusplus
}

namespace objc {

/// Calls the function. Returns the exception that it raised, or nil. C++ exceptions pass through.
template <class Function>
NSException* tryObjC(Function function) {
    return GSTry([](void* context) { (*static_cast<Function*>(context))(); }, &function);
}

} // namespace objc
#endif
