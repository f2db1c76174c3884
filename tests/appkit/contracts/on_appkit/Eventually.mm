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

testing::AssertionResult eventually(const std::function<bool()>& condition) {
    constexpr int longest = 10;
    const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(longest);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > limit)
            return testing::AssertionFailure() << "did not come true within " << longest << " s";
        runLoopOnce();
    }
    return testing::AssertionSuccess();
}

} // namespace qbsp::contracts
