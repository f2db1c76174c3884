#include <gtest/gtest.h>

#import <Foundation/Foundation.h>

namespace {

// They must exist before any other instance.
void makeSharedDefaults() {
    [NSUserDefaults standardUserDefaults];
}

} // namespace

int main(int argc, char** argv) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    makeSharedDefaults();
    testing::InitGoogleTest(&argc, argv);
    // A C++ handler that an Objective-C exception passes would end the process.
    GTEST_FLAG_SET(catch_exceptions, false);
    const int failed = RUN_ALL_TESTS();
    [pool release];
    return failed;
}
