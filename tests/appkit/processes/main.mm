#include <gtest/gtest.h>

#import <Foundation/Foundation.h>

int main(int argc, char** argv) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    // The shared defaults must exist before any other instance.
    [NSUserDefaults standardUserDefaults];
    testing::InitGoogleTest(&argc, argv);
    // A C++ handler that an Objective-C exception passes would end the process.
    GTEST_FLAG_SET(catch_exceptions, false);
    const int failed = RUN_ALL_TESTS();
    [pool release];
    return failed;
}
