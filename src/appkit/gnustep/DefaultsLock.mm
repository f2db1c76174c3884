#include "appkit/gnustep/DefaultsLock.h"

namespace qbsp::appkit {

namespace {

// What GNUstep's defaults go by.
constexpr NSTimeInterval staleAfter = 20;
constexpr NSTimeInterval betweenTries = 0.05;

NSDistributedLock* lockIn(NSString* defaultsFolder) {
    NSString* folder = [defaultsFolder stringByAppendingPathComponent:@".lck"];
    [[NSFileManager defaultManager] createDirectoryAtPath:folder
                              withIntermediateDirectories:YES
                                               attributes:nil
                                                    error:nullptr];
    return [NSDistributedLock lockWithPath:[folder stringByAppendingPathComponent:@".GNUstepDefaults.lck"]];
}

} // namespace

DefaultsLock::DefaultsLock(NSString* defaultsFolder) : lock_(lockIn(defaultsFolder)), held_(acquire()) {}

DefaultsLock::~DefaultsLock() {
    if (held_)
        [lock_.get() unlock];
}

bool DefaultsLock::acquire() const {
    NSDate* limit = [NSDate dateWithTimeIntervalSinceNow:staleAfter + 1];
    while (![lock_.get() tryLock]) {
        if ([limit timeIntervalSinceNow] < 0)
            return false;
        NSDate* taken = [lock_.get() lockDate];
        if (taken != nil && [taken timeIntervalSinceNow] < -staleAfter)
            [lock_.get() breakLock];
        [NSThread sleepForTimeInterval:betweenTries];
    }
    return true;
}

} // namespace qbsp::appkit
