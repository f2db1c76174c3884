#pragma once

#include <ctime>

/// Seconds that this process has run, which others that run meanwhile do not change.
[[nodiscard]] inline double processorTime() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}
