#pragma once

#import <Foundation/Foundation.h>

#ifdef __cplusplus
extern "C" {
#endif

/// Calls the function with the context. Answers the exception that it raised, or nil. C++ exceptions pass.
NSException* GSTry(void (*function)(void*), void* context);

#ifdef __cplusplus
}

namespace objc {

/// Calls the function. Answers the exception that it raised, or nil. C++ exceptions pass.
template <class Function>
NSException* tryObjC(Function function) {
    return GSTry([](void* context) { (*static_cast<Function*>(context))(); }, &function);
}

} // namespace objc
#endif
