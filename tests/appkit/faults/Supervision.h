#pragma once

#include "FileCalls.h"

#include <functional>

namespace faults {

/// What becomes of a system call: it is made, it fails with an error of that number, or its process is killed
/// instead.
using Verdict = int;
inline constexpr Verdict isMade = 0;
inline constexpr Verdict isKilled = -1;

/// What is done in a supervised process.
struct Work {
    std::function<std::function<void()>()> prepare; ///< before it is supervised; returns what is done then
    std::function<bool()> afterwards;               ///< when every call is made again; returns success
};

/// What the supervising process does meanwhile.
struct Supervision {
    std::function<Verdict(const FileCall&)> judge; ///< of each call on a file, before it is made
    std::function<void()> inBetween; ///< while the process waits between the two halves of its work
};

/// Does the work in a process of its own. Every call on files is judged there, whoever makes it, because the
/// kernel asks before it makes one. Returns what waitpid() says of the process; it has succeeded when that is
/// 0.
[[nodiscard]] int supervised(const Work& work, const Supervision& supervision);

} // namespace faults
