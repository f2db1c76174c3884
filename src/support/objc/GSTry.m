#import "objc/GSTry.h"

// In plain Objective-C, because g++'s personality routine for Objective-C++ crashes on a typed handler.
NSException* GSTry(void (*function)(void*), void* context) {
    @try {
        function(context);
    } @catch (NSException* exception) {
        return exception;
    }
    return nil;
}
