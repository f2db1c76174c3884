#include "appkit/stores/gnustep/DefaultsLock.h"

#include "appkit/stores/gnustep/DefaultsFolder.h"

namespace qbsp::appkit {

namespace {

// What GNUstep's defaults go by.
constexpr NSTimeInterval staleAfter = 20;
constexpr NSTimeInterval betweenTries = 0.05;

NSDistributedLock* defaultsLock() {
    NSString* folder = lockFolder();
    if (folder == nil)
        return nil;
    return [NSDistributedLock lockWithPath:[folder stringByAppendingPathComponent:@".GNUstepDefaults.lck"]];
}

} // namespace

DefaultsLock::DefaultsLock() : lock_(defaultsLock()), held_(acquire()) {}

DefaultsLock::~DefaultsLock() {
    if (held_)
        [lock_.get() unlock];
}

bool DefaultsLock::acquire() const {
    if (lock_.get() == nil)
        return false;
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
