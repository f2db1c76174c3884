#include "ProcessorTime.h"
#include "ShownPane.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <malloc.h>
#include <string>

namespace fs = std::filesystem;

namespace {

/// What this process has in use.
struct Usage {
    double heap;        ///< in kilobytes
    double resident;    ///< in kilobytes
    double descriptors; ///< how many are open
    double threads;     ///< how many run
};

double entriesIn(const char* folder) {
    return static_cast<double>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

double kilobytesResident() {
    std::ifstream status("/proc/self/status");
    std::string word;
    double kilobytes = 0;
    while (status >> word && word != "VmRSS:") {
    }
    status >> kilobytes;
    return kilobytes;
}

Usage usage() {
    return {static_cast<double>(mallinfo2().uordblks) / 1024, kilobytesResident(), entriesIn("/proc/self/fd"),
            entriesIn("/proc/self/task")};
}

int numberOfCycles() {
    const char* const chosen = std::getenv("SORTERPANE_CYCLES");
    return chosen == nullptr ? 100 : std::atoi(chosen);
}

/// A pane with a list of one application, while a Sorter runs.
class Endurance : public ShownPane {
protected:
    Endurance() {
        store(hideFlags(@"Atlas"), hideListKey, @"com.quarrybook.Sorter");
        executeIdle(makeApplication("Quarrybook Sorter", "com.quarrybook.Sorter"));
        EXPECT_TRUE(eventually([&] {
            [pane updateToggleButtonTitle];
            return [buttonTitle() isEqualToString:@"Quit"];
        }));
    }

    /// Shows the pane, changes the list and a hot key, and leaves.
    void cycle() {
        NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
        hostRegistrar().messages.clear();
        select();
        isTicked_ = !isTicked_;
        tick(0, isTicked_);
        [pane shortcutRecorder:[[pane mainView] valueForKey:@"noteHotKeyRecorder"]
             keyComboDidChange:KeyCombo{.flags = 0x100000, .code = isTicked_ ? 8 : 9}];
        unselect();
        [[NSRunLoop currentRunLoop] runUntilDate:[NSDate date]];
        [pool release];
    }

    /// Seconds that so many cycles run.
    double secondsOf(int cycles) {
        const double begin = processorTime();
        for (int number = 0; number < cycles; ++number)
            cycle();
        return processorTime() - begin;
    }

    bool isTicked_ = false;
};

} // namespace

TEST_F(Endurance, OfManyCyclesTakesNoMoreMemoryDescriptorsThreadsOrTime) {
    const int cycles = numberOfCycles();
    secondsOf(cycles / 4);
    const double secondsAtFirst = secondsOf(cycles / 4);
    const Usage before = usage();
    secondsOf(cycles - cycles / 4);
    const Usage after = usage();
    const double secondsAtLast = secondsOf(cycles / 4);

    std::cout << cycles << " cycles: heap " << before.heap << " to " << after.heap << " KB, resident "
              << before.resident << " to " << after.resident << " KB, " << after.descriptors
              << " descriptors, " << after.threads << " threads, " << secondsAtFirst << " s for the first "
              << cycles / 4 << ", " << secondsAtLast << " s for the last\n";
#ifndef __SANITIZE_ADDRESS__ // which keeps what was freed, takes its own time, and finds leaks itself
    EXPECT_LT(after.heap - before.heap, 8);
    EXPECT_LT(after.resident - before.resident, 512);
    EXPECT_LT(secondsAtLast, 2 * secondsAtFirst);
#endif
    EXPECT_EQ(after.descriptors, before.descriptors);
    EXPECT_EQ(after.threads, before.threads);
    EXPECT_EQ([[stored(hideListKey, @"com.quarrybook.Sorter") objectForKey:@"Atlas"] boolValue], isTicked_);
}
