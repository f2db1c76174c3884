#include "on_appkit/Eventually.h"

#import <Foundation/Foundation.h>

#include <chrono>

namespace qbsp::contracts {

namespace {

void runLoopOnce() {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    NSDate* shortly = [NSDate dateWithTimeIntervalSinceNow:0.01];
    // A run loop without any source returns at once.
    if (![[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode beforeDate:shortly])
        [NSThread sleepUntilDate:shortly];
    [pool release];
}

} // namespace

bool eventually(const std::function<bool()>& condition) {
    const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > limit)
            return false;
        runLoopOnce();
    }
    return true;
}

} // namespace qbsp::contracts
