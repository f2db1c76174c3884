#import "objc/GSTry.h"

// In plain Objective-C: the personality of Objective-C++ under g++ crashes on a typed handler.
NSException* GSTry(void (*function)(void*), void* context) {
    @try {
        function(context);
    } @catch (NSException* exception) {
        return exception;
    }
    return nil;
}
