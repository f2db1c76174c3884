#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace quarrybook {

/// The time in seconds that a window takes to appear or disappear.
inline constexpr double timeForWindows = 0.1;

/// The result of running a command.
struct Outcome {
    std::vector<std::string> lines;  ///< to print
    double pause = 0;                ///< seconds to let pass before the next command
    std::function<bool()> condition; ///< must be true before the next command; may be empty
};

/// The outcome of a command with a result, which is JSON.
[[nodiscard]] inline Outcome result(const std::string& json) {
    return {.lines = {"= " + json}, .pause = 0, .condition = {}};
}

/// The outcome of a command that takes that many seconds.
[[nodiscard]] inline Outcome after(double pause) {
    return {.lines = {}, .pause = pause, .condition = {}};
}

} // namespace quarrybook
