#include "ProcessorTime.h"
#include "ShownPane.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace fs = std::filesystem;

namespace {

NSString* const sorterDomain = @"com.quarrybook.Sorter";

class LongList : public ShownPane {
protected:
    /// Stores a list of so many applications, none of which is ticked, in an order that is not theirs.
    static void storeApplications(int count) {
        constexpr int step = 7919; // a prime, so that each number comes once
        std::ofstream file(fs::path(std::getenv("HOME")) / "GNUstep/Defaults/com.quarrybook.Sorter.plist");
        file << "{ " << [hideListKey UTF8String] << " = {\n";
        for (long number = 0; number < count; ++number)
            file << "\"Application " << number * step % count << "\" = <*BN>;\n";
        file << "}; }";
    }

    /// Seconds that the action takes of a processor. Prints them.
    template <class Action>
    static double secondsOf(const char* name, Action action) {
        const double begin = processorTime();
        action();
        const double seconds = processorTime() - begin;
        std::cout << name << " in " << seconds << " s\n";
        return seconds;
    }

    /// Shows a list of so many applications, ticks the first and leaves the pane, each within that many
    /// seconds.
    void expectToShowAndSave(int count, double limit) {
        storeApplications(count);

        EXPECT_LT(secondsOf("shown", [&] { select(); }), limit);
        ASSERT_EQ([pane numberOfRowsInTableView:nil], count);
        tick(0, true);
        EXPECT_LT(secondsOf("saved", [&] { unselect(); }), limit);

        NSDictionary* list = stored(hideListKey, sorterDomain);
        EXPECT_EQ([list count], static_cast<NSUInteger>(count));
        EXPECT_TRUE([[list objectForKey:@"Application 0"] boolValue]);
    }
};

} // namespace

TEST_F(LongList, OfTenThousandApplicationsIsShownAndSavedAtOnce) {
    expectToShowAndSave(10'000, 1);
}

TEST_F(LongList, OfAHundredThousandApplicationsIsShownAndSavedWithinSeconds) {
    expectToShowAndSave(100'000, 10);
}
