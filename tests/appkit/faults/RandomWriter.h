#pragma once

#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <string>
#include <sys/types.h>

namespace faults {

inline constexpr int keysOfAWriter = 8;
inline constexpr const char* listKey = "UserSpecifiedFullScreenApplications";

/// When a save of the list began and ended, in nanoseconds of the machine's clock, and its number.
struct ListSave {
    std::atomic<long> number = 0;
    std::atomic<std::int64_t> began = 0;
    std::atomic<std::int64_t> ended = 0;
};

/// What a writer has set its keys to, and what of that it was told is saved. It outlives a writer that is
/// killed, because it lies in memory that processes share.
struct Model {
    using Values = std::array<std::atomic<int>, keysOfAWriter>;

    struct Domain {
        Values set{};
        Values saved{};
    };

    Domain sorter;
    Domain host;
    std::atomic<long> listsSet = 0;
    ListSave list; ///< the last that was saved
    std::atomic<bool> isOver = false;
};

/// The name of that key of that writer.
[[nodiscard]] std::string keyOf(int writer, int key);

[[nodiscard]] std::int64_t now();

/// Starts a process that writes at random into the Sorter's domain and into the host's, until the model says
/// that it is over; then it saves until all is saved, and succeeds.
[[nodiscard]] pid_t startWriter(int writer, Model& model, unsigned seed);

} // namespace faults
