#include "Long.h"

#include <gtest/gtest.h>

#import <Foundation/Foundation.h>

#include <algorithm>
#include <string_view>

namespace faults {

bool isLong = false;

} // namespace faults

// They must exist before any other instance.
static void makeSharedDefaults() {
    [NSUserDefaults standardUserDefaults];
}

int main(int argc, char** argv) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    makeSharedDefaults();
    testing::InitGoogleTest(&argc, argv);
    // A C++ handler that an Objective-C exception passes would end the process.
    GTEST_FLAG_SET(catch_exceptions, false);
    faults::isLong = argc > 1 && std::string_view(argv[1]) == "--long";
    const int failed = RUN_ALL_TESTS();
    [pool release];
    return failed;
}
